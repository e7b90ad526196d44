// Operand classes, bit operands and relative offsets.

#include <algorithm>

#include "assembler/assembler.h"
#include "base/text.h"

namespace korvex {

void Assembler::classifyOperand(std::string& text, std::int16_t& operandClass,
                                std::int32_t& value) {
    if (text.empty()) return;
    // When an expression doesn't evaluate, neither class nor value are written.
    if (text.front() == '#') {
        std::string rest = text.substr(1);
        std::int32_t evaluated = kValueContext;
        bool found = false;
        evaluateExpression(rest, evaluated, found);
        if (found) {
            operandClass = ClassImmediate;
            value = evaluated;
        }
        return;
    }
    if (text.size() == 2 && text[0] == 'R' && text[1] >= '0' && text[1] <= '7') {
        operandClass = ClassRegister;
        value = text[1] - '0';
        return;
    }
    if (text == "@R0" || text == "@R1") {
        operandClass = ClassIndirect;
        value = text[2] - '0';
        return;
    }
    if (text == "A") {
        operandClass = ClassAccumulator;
        return;
    }
    if (text == "DPTR") {
        operandClass = ClassDptr;
        return;
    }
    std::int32_t evaluated = kValueContext;
    bool found = false;
    evaluateExpression(text, evaluated, found);
    if (found) {
        operandClass = ClassDirect;
        value = evaluated;
    }
}

void Assembler::parseBitOperand(std::string& text, std::int16_t& operandClass,
                                std::int32_t& value) {
    const std::size_t dot = text.find('.');
    if (dot != std::string::npos) {
        std::string left = text.substr(0, dot);
        const std::string right = text.substr(dot + 1);
        // Compared as text: "7" passes, "70" does not.
        if (right > "7" || right < "0") return;
        // The bit number is read as far as it has digits; a huge one overflows
        // where it is added to an address, as the host's arithmetic does.
        std::int64_t digits = 0;
        for (std::size_t i = 0; i < right.size() && right[i] >= '0' && right[i] <= '9'; ++i) {
            digits = std::min<std::int64_t>(digits * 10 + (right[i] - '0'), std::int64_t{1} << 40);
        }
        const auto withBit = [digits](std::int64_t address) {
            return checkedInt32(address + digits);
        };
        if (const int sfr = state_.sfrTable.find(left); sfr >= 0) {
            const auto address =
                static_cast<std::int32_t>(parseHexPrefix(state_.sfrTable.at(sfr, 1)));
            if (address % 8 == 0) {
                value = withBit(address);
                operandClass = ClassBit;
                return;
            }
        }
        std::int32_t byteAddress = kValueContext;
        bool found = true;
        evaluateExpression(left, byteAddress, found);
        if (found && byteAddress >= 0x20 && byteAddress <= 0x2F) {
            value = withBit((byteAddress - 0x20) * 8);
            operandClass = ClassBit;
        } else if (found && byteAddress >= 0x80 && byteAddress % 8 == 0) {
            value = withBit(byteAddress);
            operandClass = ClassBit;
        }
        return;
    }
    if (const int row = state_.bitTable.find(text); row >= 0) {
        state_.bitTable.set(row, 2, "1");
        value = static_cast<std::int32_t>(parseHexPrefix(state_.bitTable.at(row, 1)));
        operandClass = ClassBit;
        return;
    }
    // The caller's value itself selects the bit context, so an unknown name
    // leaves 8 there, and that is what SETB, IF BIT and #BIT store with it.
    value = kBitContext;
    bool found = false;
    evaluateExpression(text, value, found);
    if (found) operandClass = ClassBit;
}

std::int32_t Assembler::relativeOffset(std::int32_t target, std::int32_t length) {
    const std::int64_t offset = std::int64_t{target} - state_.codeAddress - length;
    if (offset >= -128 && offset <= 127) return static_cast<std::int32_t>(offset & 0xFF);
    state_.errorNumber = Finding::RelativeRangeExceeded;
    return 0;
}

}  // namespace korvex
