// Warnings for statements whose length the second pass changed, named by
// the file and line the user wrote them in.

#include "assembler/length_check.h"

#include "assembler/source_places.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {
namespace {

std::string warningLine(const SourcePlace& place, const std::string& statement,
                        const LengthChange& change) {
    std::string shown = statement;
    for (char& c : shown) {
        if (c == '\t') c = ' ';
    }
    shown = trimBlanks(shown);
    std::string text = "Warnung: ";
    if (!place.name.empty()) text += place.name + " ";
    text += "Zeile " + place.line + ": Die Anweisung ";
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
    const std::vector<SourcePlace> places = sourcePlaces(state);
    for (const LengthChange& change : state.lengthChanges) {
        const auto row = static_cast<std::size_t>(change.row);
        if (row >= places.size()) continue;
        warnings.push_back(warningLine(places[row], std::string(state.statementOf(row)), change));
    }
    return warnings;
}

}  // namespace korvex
