// buildReport: the status report after both passes. Warnings and errors stand
// under one heading; a clean run shows only the statistic.

#include "assembler/assembler.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {
namespace {

const std::string kLineEnd(kCrLf);

bool unused(const std::string& mark) {
    return mark.empty() || mark == "0";
}

// An address column converted the classic way: text that is no number (the
// empty row of a table without vectors) is a type mismatch.
std::int64_t addressCell(const std::string& text) {
    const std::int64_t value = parseDecimal(text, -1);
    if (text.empty() || (value == -1 && text != "-1")) raise(FailureNumber::TypeMismatch);
    return value;
}

template <std::size_t N, std::size_t M>
void clashLines(const TextTable<N>& first, const TextTable<M>& second, const std::string& words,
                std::string& out) {
    for (int i = 0; i < first.size(); ++i) {
        const std::string& key = first.at(i, 0);
        if (key.empty()) continue;
        for (int j : second.findAll(key)) {
            (void)j;
            out += "-> " + key + words + kLineEnd;
        }
    }
}

}  // namespace

void Assembler::buildReport(std::int32_t endOfCode) {
    auto& state = state_;
    std::string warnings;
    for (const RowMarker& entry : state.markers) {
        const auto index = entry.row;
        const std::string marker(state.markerText(entry));
        if (trimBlanks(marker).empty()) continue;
        if (static_cast<std::size_t>(index) >= state.sourceTable.size()) continue;
        SourceRow& row = state.sourceTable[static_cast<std::size_t>(index)];
        // The listing written after the report shows the statement there too.
        if (row.sourceText.length == 0) row.sourceText = row.statement;
        warnings += "Zeile " + row.position() + " ";
        warnings += state.textOf(row.sourceText);
        warnings += " " + marker + kLineEnd;
    }
    if (state.openIfCount != 0) {
        warnings += std::to_string(state.openIfCount.value()) + " offene If-Schleife(n)" + kLineEnd;
    }
    if (state.openForCount != 0) {
        warnings +=
            std::to_string(state.openForCount.value()) + " offene For-Schleife(n)" + kLineEnd;
    }
    if (state.openLoopCount != 0) {
        warnings +=
            std::to_string(state.openLoopCount.value()) + " offene Loop-Schleife(n)" + kLineEnd;
    }
    clashLines(state.byteTable, state.wordTable, " ist Byte- und Word-Variable.", warnings);
    clashLines(state.byteTable, state.constantTable, " ist Byte-Variable und Konstante.", warnings);
    clashLines(state.byteTable, state.labelTable, " ist Byte-Variable und Label.", warnings);
    clashLines(state.constantTable, state.labelTable, " ist Constante und Label.", warnings);

    std::string lines;
    for (int i = 0; i < state.labelTable.size(); ++i) {
        if (!unused(state.labelTable.at(i, 2))) continue;
        lines += "   " + state.labelTable.at(i, 3) + ",  Adresse " +
                 hexDigits(addressCell(state.labelTable.at(i, 1))) + "h" + kLineEnd;
    }
    if (!lines.empty()) warnings += "Unbenutzte Label" + kLineEnd + lines;
    lines.clear();
    for (int i = 0; i < state.bitTable.size(); ++i) {
        if (!unused(state.bitTable.at(i, 2))) continue;
        lines += "   " + state.bitTable.at(i, 3) + ": " + state.bitTable.at(i, 1) + "h" + kLineEnd;
    }
    if (!lines.empty()) warnings += "Unbenutzte Bits" + kLineEnd + lines;
    lines.clear();
    for (int i = 0; i < state.byteTable.size(); ++i) {
        if (!unused(state.byteTable.at(i, 2)) || state.byteTable.at(i, 3).empty()) continue;
        lines += "   " + state.byteTable.at(i, 3) + ": " +
                 hexDigits(parseDecimal(state.byteTable.at(i, 1))) + "h" + kLineEnd;
    }
    if (!lines.empty()) warnings += "Unbenutzte Byte" + kLineEnd + lines;

    std::string statistic = decimalText(static_cast<std::int64_t>(state.sourceTable.size()), true) +
                            text8(" Zeilen übersetzt. Code Ende bei ") + hexDigits(endOfCode, 4) +
                            "h." + kLineEnd;
    if (!state.symbolList.at(0, 0).empty()) {
        struct Kind {
            const char* name;
            const char* headline;
            const char* plural;
            std::string entries;
            int count = 0;
        };
        Kind kinds[] = {{"BIT", " Bit-Variable", "n", {}},
                        {"IRAM", " Byte-Variable", "n", {}},
                        {"CONST", " Konstante", "n", {}},
                        {"LABEL", " Label", "s", {}},
                        {"DEF", " Definition", "en", {}}};
        for (int i = 0; i < state.symbolList.size(); ++i) {
            const std::string& kind = state.symbolList.at(i, 1);
            Kind* target = &kinds[1];  // anything unknown counts as a byte variable
            for (Kind& k : kinds) {
                if (kind == k.name && std::string(k.name) != "IRAM") target = &k;
            }
            target->entries +=
                "\t" + state.symbolList.at(i, 0) + ": " + state.symbolList.at(i, 2) + kLineEnd;
            ++target->count;
        }
        for (const Kind& k : kinds) {
            if (k.count == 0) continue;
            statistic += decimalText(k.count, true) + k.headline + (k.count > 1 ? k.plural : "") +
                         ":" + kLineEnd + k.entries;
        }
    }
    if (!state.wordTable.at(0, 0).empty()) {
        const int count = state.wordTable.size();
        statistic +=
            decimalText(count, true) + " Word-Variable" + (count > 1 ? "n" : "") + ":" + kLineEnd;
        for (int i = 0; i < count; ++i) {
            statistic += "\t" + state.wordTable.at(i, 0) + ": " +
                         hexDigits(parseDecimal(state.wordTable.at(i, 1))) + "h" + kLineEnd;
        }
    }
    if (state.includeList.size() > 1) {
        statistic += kLineEnd + "Include-Dateie(n):" + kLineEnd;
        for (std::size_t i = 1; i < state.includeList.size(); ++i) {
            statistic += "  " + std::to_string(i) + ": " + state.includeList[i] + kLineEnd;
        }
    }

    if (!warnings.empty()) {
        for (char& c : warnings) {
            if (c == '\t') c = ' ';
        }
        state.reportText = "Warnungen/Fehler:" + kLineEnd + warnings + kLineEnd + statistic;
    } else {
        state.reportText = statistic;
    }
}

}  // namespace korvex
