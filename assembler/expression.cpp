// evaluateExpression: the one routine that turns operand text into a value.
// The text is upper case and free of blanks. The value argument is input as
// well as output: it selects the label, bit or value context.

#include <cmath>

#include "assembler/assembler.h"
#include "base/text.h"

namespace korvex {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isHexDigit(char c) {
    return isDigit(c) || (c >= 'A' && c <= 'F');
}

// The decimal test: digits, a D as last character, a sign in front.
bool passesDecimalTest(std::string_view text) {
    bool found = true;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (isDigit(c)) continue;
        if (c == 'D') {
            if (i + 1 != text.size()) found = false;
            continue;
        }
        if ((c == '+' || c == '-') && i == 0) continue;
        return false;
    }
    return found;
}

// Numeric value of decimal text; stops at the trailing D. Too large is an overflow.
std::int32_t decimalValue(std::string_view text) {
    std::int64_t value = 0;
    bool negative = false;
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
    for (; i < text.size() && isDigit(text[i]); ++i) {
        value = value * 10 + (text[i] - '0');
        if (value > 0x80000000LL) raise(FailureNumber::Overflow);
    }
    value = checkedInt32(negative ? -value : value);
    if (value < 0) value += 65536;
    return static_cast<std::int32_t>(value);
}

// Hexadecimal digits read as a 32-bit number: FFFFFFFF is -1, more digits overflow.
std::int32_t hexValue(std::string_view digits) {
    std::uint64_t value = 0;
    for (char c : digits) {
        value = value * 16 + static_cast<std::uint64_t>(isDigit(c) ? c - '0' : c - 'A' + 10);
        if (value > 0xFFFFFFFFULL) raise(FailureNumber::Overflow);
    }
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
}

std::int32_t decimalCell(const std::string& text) {
    return static_cast<std::int32_t>(parseDecimal(text));
}

}  // namespace

void Assembler::evaluateExpression(std::string& text, std::int32_t& value, bool& found) {
    evaluatePart(text, value, found, &text);
}

// `caller` is the caller's own text at the top level: a LOW( or HIGH( wrapper
// is cut off it. The parts of a split are views into it, so a long chain of
// operators costs no copies.
void Assembler::evaluatePart(std::string_view text, std::int32_t& value, bool& found,
                             std::string* caller) {
    // Each operator is one level deeper; a line of thousands of them would
    // exhaust the stack, so the run ends with the classic failure instead.
    struct DepthGuard {
        explicit DepthGuard(int& depth) : depth_(depth) {
            if (++depth_ > kDeepestExpression) {
                --depth_;
                raise(FailureNumber::OutOfStackSpace);
            }
        }
        ~DepthGuard() { --depth_; }
        int& depth_;
    } guard(expressionDepth_);

    if (text.empty()) {
        found = false;
        return;
    }
    found = true;
    const std::int32_t context = value;
    if (context == kLabelContext) {
        const int row = state_.labelTable.find(text);
        if (row >= 0) {
            value = decimalCell(state_.labelTable.at(row, 1));
            state_.labelTable.set(row, 2, "1");
            return;
        }
    }

    // Operator split: + and - bind weaker than * and /, all left-associative.
    std::size_t split = text.find_last_of("+-");
    if (split == std::string_view::npos) split = text.find_last_of("*/");
    if (split != std::string_view::npos) {
        const char op = text[split];
        std::string_view left = text.substr(0, split);
        const std::string_view right = text.substr(split + 1);
        if (left.empty() && !right.empty() && (op == '+' || op == '-')) left = "0";
        if (left.empty() || right.empty()) {
            state_.errorNumber = Finding::InvalidExpression;
            found = false;
            return;
        }
        std::int32_t leftValue = context;
        std::int32_t rightValue = context;
        bool leftFound = false;
        bool rightFound = false;
        evaluatePart(left, leftValue, leftFound, nullptr);
        evaluatePart(right, rightValue, rightFound, nullptr);
        if (!leftFound || !rightFound) {
            if (state_.errorNumber == Finding::None)
                state_.errorNumber = Finding::VariableNotRecognised;
            found = false;
            return;
        }
        switch (op) {
            case '+': value = checkedAdd(leftValue, rightValue); break;
            case '*': value = checkedMul(leftValue, rightValue); break;
            case '-':
                // Byte-oriented on purpose: 0-1 is 255, but 0-300 stays negative.
                value = checkedSub(leftValue, rightValue);
                if (value < 0) value += 256;
                break;
            default:
                if (rightValue == 0) {
                    state_.errorNumber = Finding::DivisionByZero;
                    return;
                }
                value = checkedInt32(static_cast<std::int64_t>(
                    std::floor(static_cast<double>(leftValue) / rightValue)));
                break;
        }
        return;
    }

    enum class Part { Whole, Low, High } part = Part::Whole;
    if (text.back() == ')' && text.find(')') == text.size() - 1) {
        std::size_t wrapper = 0;
        if (startsWith(text, "LOW(")) {
            wrapper = 4;
            part = Part::Low;
        } else if (startsWith(text, "HIGH(")) {
            wrapper = 5;
            part = Part::High;
        }
        if (wrapper != 0) {
            text = text.substr(wrapper, text.size() - wrapper - 1);
            if (caller != nullptr) {
                *caller = std::string(text);
                text = *caller;
            }
        }
    }

    auto applyPart = [&]() {
        if (part == Part::Low) value %= 256;
        if (part == Part::High) value = static_cast<std::int32_t>(std::floor(value / 256.0));
    };

    // A register name gives its address whole: HIGH(ACC) is E0h.
    if (const int sfr = state_.sfrTable.find(text); sfr >= 0) {
        value = static_cast<std::int32_t>(parseHexPrefix(state_.sfrTable.at(sfr, 1)));
        return;
    }
    if (passesDecimalTest(text)) {
        value = decimalValue(text);
        applyPart();
        return;
    }
    found = false;
    if (text.size() > 1 && text.back() == 'H') {
        const std::string_view digits = text.substr(0, text.size() - 1);
        bool allHex = true;
        for (char c : digits) allHex = allHex && isHexDigit(c);
        if (allHex) {
            found = true;
            value = hexValue(digits);
            applyPart();
            return;
        }
    }
    if (text.size() >= 2 && text.size() <= 9 && text.back() == 'B') {
        // The digits are added to the value as it stands, not to 0: in the
        // label context 101B is 12, in the bit context 13. Kept on purpose.
        const std::size_t digits = text.size() - 1;
        bool allBinary = true;
        for (std::size_t i = 0; i < digits; ++i) {
            if (text[i] == '1') {
                value += 1 << (digits - 1 - i);
            } else if (text[i] != '0') {
                allBinary = false;
                break;
            }
        }
        if (allBinary) {
            found = true;
            applyPart();
            return;
        }
    }
    if (text == "HIER") {
        found = true;
        value = state_.codeAddress;
        applyPart();
        return;
    }
    if (context == kBitContext) return;

    found = true;
    if (context != kLabelContext) {
        if (const int row = state_.byteTable.find(text); row >= 0) {
            value = decimalCell(state_.byteTable.at(row, 1));
            state_.byteTable.set(row, 2, "1");
            return;
        }
        if (const int row = state_.wordTable.find(text); row >= 0) {
            value = decimalCell(state_.wordTable.at(row, 1));
            state_.wordTable.set(row, 2, "1");
            applyPart();
            return;
        }
    }
    if (const int row = state_.labelTable.find(text); row >= 0) {
        value = decimalCell(state_.labelTable.at(row, 1));
        state_.labelTable.set(row, 2, "1");
        applyPart();
        return;
    }
    if (const int row = state_.constantTable.find(text); row >= 0) {
        value = decimalCell(state_.constantTable.at(row, 1));
        applyPart();
        return;
    }
    found = false;
}

}  // namespace korvex
