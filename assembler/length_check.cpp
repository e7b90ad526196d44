// Warnings for statements whose length the second pass changed. The rows
// know their file only by number, and one number serves every include that
// opens at the same depth, so the names come from a walk over the rows: an
// include begins where the file number rises, and the line just before it
// holds the #INCLUDE that opened it.

#include "assembler/length_check.h"

#include <algorithm>

#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {
namespace {

struct Position {
    int file = 0;
    std::string line;
};

// "2:17" into file 2 and line "17"; an empty or broken position gives file 0.
Position readPosition(const std::string& text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos) return {};
    const std::int64_t file = parseDecimal(text.substr(0, colon), 0);
    if (file < 1 || file > 32767) return {};
    return {static_cast<int>(file), text.substr(colon + 1)};
}

std::string fileNamePart(const std::string& path) {
    const std::size_t slash = path.find_last_of("/\\");
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

// The names that the #INCLUDE statements of a raw line give, in their order,
// cut the way the line code cuts them: at ";", and at a colon outside quotes.
std::vector<std::string> includeNamesOf(std::string line) {
    line.erase(std::min(line.find(';'), line.size()));
    for (char& c : line) {
        if (c == '\t') c = ' ';
    }
    const std::string upper = upperCase(line);
    std::vector<std::string> names;
    for (std::size_t hash = upper.find('#'); hash != std::string::npos;
         hash = upper.find('#', hash + 1)) {
        std::size_t word = hash + 1;
        while (word < upper.size() && upper[word] == ' ') ++word;
        if (upper.compare(word, 8, "INCLUDE ") != 0) continue;
        std::string name;
        bool inQuote = false;
        for (std::size_t i = word + 8; i < line.size(); ++i) {
            const char c = line[i];
            if (c == '\'') {
                inQuote = !inQuote;
                continue;
            }
            if (c == ':' && !inQuote) break;
            name += c;
        }
        names.push_back(trimBlanks(name));
    }
    return names;
}

// The raw line that holds row `row`: the nearest row at or above it that
// stores one (only the first row of a line does).
const std::string& rawLineOf(const RunState& state, std::size_t row) {
    static const std::string kNone;
    for (std::size_t i = row + 1; i-- > 0;) {
        if (!state.sourceTable[i].sourceText.empty()) return state.sourceTable[i].sourceText;
    }
    return kNone;
}

std::string warningLine(const std::string& fileName, const Position& position,
                        const std::string& statement, const LengthChange& change) {
    std::string shown = statement;
    for (char& c : shown) {
        if (c == '\t') c = ' ';
    }
    shown = trimBlanks(shown);
    std::string text = "Warnung: ";
    if (!fileName.empty()) text += fileName + " ";
    text += "Zeile " + position.line + ": Die Anweisung ";
    if (!shown.empty()) text += text8("„") + shown + text8("“ ");
    text += text8("ist im 2. Durchlauf ") + std::to_string(change.secondLength) + " statt " +
            std::to_string(change.firstLength) +
            text8(
                " Byte lang (Vorwärtsbezug); die Adressen dahinter stimmen nicht, der "
                "erzeugte Code ist falsch. Definieren Sie den Namen vor seiner ersten "
                "Verwendung.");
    return text;
}

}  // namespace

int codeTextLength(const std::string& codeText) {
    if (codeText.size() < 4 || hexDigitValue(codeText[0]) < 0) return 0;
    int digits = 0;
    for (std::size_t i = 4; i < codeText.size(); ++i) {
        if (hexDigitValue(codeText[i]) >= 0) ++digits;
    }
    return digits / 2;
}

std::vector<std::string> lengthChangeWarnings(const RunState& state) {
    std::vector<std::string> warnings;
    if (state.lengthChanges.empty()) return warnings;

    std::vector<std::string> names(2);
    names[1] = fromUtf8(fileNamePart(state.sourceName));
    int previousFile = 1;
    Position last{1, "0"};
    auto change = state.lengthChanges.begin();
    for (std::size_t row = 0; row < state.sourceTable.size(); ++row) {
        if (change == state.lengthChanges.end()) break;
        const Position read = readPosition(state.sourceTable[row].position);
        // A row that a structure added has no position: it belongs to the one before.
        const Position position = read.file == 0 ? last : read;
        last = position;
        if (names.size() <= static_cast<std::size_t>(position.file)) {
            names.resize(static_cast<std::size_t>(position.file) + 1);
        }
        if (position.file > previousFile) {
            // Files previousFile+1 .. file were opened by the line before,
            // the last #INCLUDE of it being the innermost.
            const std::vector<std::string> written =
                row > 0 ? includeNamesOf(rawLineOf(state, row - 1)) : std::vector<std::string>{};
            auto name = written.rbegin();
            for (int file = position.file; file > previousFile; --file) {
                const bool known = name != written.rend() && !name->empty();
                names[static_cast<std::size_t>(file)] =
                    known ? *name : text8("Include-Datei ") + std::to_string(file);
                if (name != written.rend()) ++name;
            }
        }
        previousFile = position.file;
        while (change != state.lengthChanges.end() &&
               change->row < static_cast<std::int32_t>(row)) {
            ++change;  // the second pass notes rows in order; this only guards
        }
        if (change != state.lengthChanges.end() && change->row == static_cast<std::int32_t>(row)) {
            warnings.push_back(warningLine(names[static_cast<std::size_t>(position.file)], position,
                                           state.sourceTable[row].statement, *change));
            ++change;
        }
    }
    return warnings;
}

}  // namespace korvex
