// defineLabel: a line whose only colon is its last character names an address.

#include "assembler/assembler.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {

void Assembler::defineLabel(std::string& text, const std::string& position) {
    text = removeAll(text, ':');
    const std::string written = trimBlanks(text);
    const std::string key = upperCase(removeAll(text, ' '));
    if (key.empty()) return;

    state_.numberResult = -1;
    const int row = state_.labelTable.find(key);
    if (row >= 0)
        state_.numberResult = static_cast<std::int32_t>(parseDecimal(state_.labelTable.at(row, 1)));

    if (row >= 0 && row < driver_.vectorCount) {
        // A vector name continues the code at that vector, no ORG needed.
        if (state_.numberResult < state_.codeAddress) {
            state_.errorNumber = Finding::AddressInWrittenRange;
            recordError();
        }
        state_.codeAddress = state_.numberResult;
    } else if (row >= 0) {
        growRowsTo(state_.currentRow);
        state_.setMarker(state_.currentRow, findingMarker(Finding::LabelDefinedTwice));
        ++state_.currentRow;
        return;
    } else {
        const int added = state_.labelTable.appendRow();
        state_.labelTable.set(added, 0, key);
        state_.labelTable.set(added, 1, std::to_string(state_.codeAddress));
        state_.labelTable.set(added, 3, written + ": Zeile " + position);
        const int symbol = state_.symbolList.appendByKeyRule();
        state_.symbolList.set(symbol, 0, written);
        state_.symbolList.set(symbol, 1, "LABEL");
        state_.symbolList.set(symbol, 2, hexDigits(state_.codeAddress, 4) + "h");
    }
    setCodeText(hexDigits(state_.codeAddress, 4) + std::string(kFourTabs));
    ++state_.currentRow;
}

}  // namespace korvex
