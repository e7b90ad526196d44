// DB and DW: data of any length, written straight into the row's code text
// with a blank between the bytes. Strings keep their case.

#include "assembler/assembler.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {

void Assembler::compileTable() {
    const bool words = state_.tokens[0] == "DW";
    std::string text = trimLeftBlanks(state_.statementCopy);
    text = cleaned(text.size() > 2 ? text.substr(2) : std::string());
    if (text.empty()) return;  // no items: the row has no code text at all

    setCodeText(hexDigits(state_.codeAddress, 4) + "\t");
    std::string item;
    bool inQuote = false;
    bool sawQuote = false;
    for (char c : text) {
        if (c == '\'') {
            inQuote = !inQuote;
            sawQuote = true;
        } else if (c == ',' && !inQuote) {
            compileTableItem(item, sawQuote, words);
            item.clear();
        } else if (c == ' ') {
            if (inQuote) item += c;
        } else if (!inQuote && sawQuote) {
            state_.errorNumber = Finding::TableFormatError;  // text behind a closing quote
            return;
        } else {
            item += c;
        }
    }
    if (!item.empty()) compileTableItem(item, sawQuote, words);
    if (inQuote) state_.errorNumber = Finding::TableFormatError;
    std::string& code = state_.codeText[static_cast<std::size_t>(state_.currentRow)];
    code.pop_back();
    code += '\t';
}

void Assembler::compileTableItem(const std::string& item, bool& sawQuote, bool words) {
    std::string& code = state_.codeText[static_cast<std::size_t>(state_.currentRow)];
    SourceRow& row = state_.sourceTable[static_cast<std::size_t>(state_.currentRow)];
    if (sawQuote) {
        // A string: one byte per character, or one word per character in DW.
        sawQuote = false;
        for (char c : item) {
            code += hexDigits(static_cast<unsigned char>(c), 2) + " ";
            if (words) code += "00 ";
            state_.codeAddress = checkedAdd(state_.codeAddress, words ? 2 : 1);
        }
        return;
    }
    std::string expression = upperCase(item);
    std::int32_t value = kValueContext;
    bool found = false;
    evaluateExpression(expression, value, found);
    if (!found) {
        // The row keeps its length and is read again with the final tables.
        state_.appendMarker(state_.currentRow, tableItemMarker(item));
        row.retry = true;
        value = 0;
    }
    if (words) {
        if (value > 0xFFFF) state_.appendMarker(state_.currentRow, "; " + item + " > FFFFh");
        code += hexDigits(value % 256, 2) + " " + hexDigits(value / 256, 2) + " ";
        state_.codeAddress = checkedAdd(state_.codeAddress, 2);
    } else {
        if (value > 255) state_.appendMarker(state_.currentRow, "; Fehler: " + item + " > FFh");
        code += hexDigits(value, 2) + " ";
        state_.codeAddress = checkedAdd(state_.codeAddress, 1);
    }
}

}  // namespace korvex
