// IF, FOR and LOOP structures. Every branch is a one-byte relative offset: a
// forward branch is emitted with offset 0, remembered, and patched into the
// code text of its row once the structure's end is known.

#include "assembler/assembler.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {
namespace {

// The leading number of a text, as the classic Val reads it: "1C" is 1.
std::int32_t leadingNumber(const std::string& text) {
    std::int32_t value = 0;
    std::size_t i = text.find_first_not_of(' ');
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
        value = value * 10 + (text[i] - '0');
    }
    return value;
}

std::string cutEnd(const std::string& text, std::size_t count) {
    return text.substr(0, text.size() >= count ? text.size() - count : 0);
}

}  // namespace

void Assembler::growForNewRow() {
    ++state_.currentRow;
    growRowsTo(state_.currentRow);
}

void Assembler::markOutOfRange(std::int32_t line) {
    growRowsTo(line);
    state_.setMarker(line, findingMarker(Finding::ExitOutOfRange));
}

void Assembler::patchLastByte(std::int32_t line, std::int32_t length, std::int32_t distance) {
    std::string& code = state_.codeText.at(static_cast<std::size_t>(line));
    const auto at = static_cast<std::size_t>(3 * length + 2);
    if (code.size() < at + 2) raise(FailureNumber::InvalidCall);
    code.replace(at, 2, hexDigits(distance, 2));
}

void Assembler::addExitEntry(std::vector<std::optional<ExitPatch>>& patches, int level) {
    const ExitPatch entry{level, state_.currentRow, state_.instructionLength.value()};
    for (auto& slot : patches) {
        if (!slot) {
            slot = entry;
            return;
        }
    }
    patches.push_back(entry);
}

void Assembler::resolveExits(std::vector<std::optional<ExitPatch>>& patches, int level,
                             std::int32_t target, std::int32_t extra) {
    for (auto& entry : patches) {
        if (!entry || entry->level != level) continue;
        const std::int32_t line = entry->line;
        const std::int32_t length = entry->length;
        const auto source = static_cast<std::int32_t>(
            parseHexPrefix(state_.codeText.at(static_cast<std::size_t>(line)).substr(0, 4)));
        std::int32_t distance = target - source - length + extra;
        if (distance > 127) {
            distance = 0;
            markOutOfRange(line);
        }
        patchLastByte(line, length, distance);
        entry.reset();
    }
}

// The literal and bit conditions; false when the text is none of them.
// `jumpWhenTrue` gives the exit forms, which branch when the condition holds.
bool Assembler::compileConditionForm(const std::string& text, bool jumpWhenTrue) {
    struct Literal {
        const char* text;
        int whenFalse;
        int whenTrue;
    };
    static const Literal kLiterals[] = {
        {"A=#0", 0x70, 0x60}, {"A>#0", 0x60, 0x70}, {"BITC", 0x50, 0x40}, {"NOTBITC", 0x40, 0x50}};
    for (const Literal& literal : kLiterals) {
        if (text == literal.text) {
            state_.instructionLength = 2;
            storeByte(0, jumpWhenTrue ? literal.whenTrue : literal.whenFalse);
            storeByte(1, 0);
            return true;
        }
    }
    bool bitClear = false;
    bool bare = false;
    std::string operand;
    if (startsWith(text, "NOTBIT")) {
        bitClear = true;
        operand = text.substr(6);
    } else if (startsWith(text, "BIT")) {
        operand = text.substr(3);
    } else if (text.find('=') == std::string::npos) {
        operand = text;  // a bit operand alone asks whether the bit is set
        bare = true;
    } else {
        return false;
    }
    std::int16_t cls = ClassNone;
    std::int32_t bit = 0;
    parseBitOperand(operand, cls, bit);
    if (bare && cls != ClassBit) {
        state_.errorNumber = Finding::SyntaxError;
        return true;
    }
    state_.instructionLength = 3;
    if (cls != ClassBit) state_.errorNumber = Finding::BitNotRecognised;
    storeByte(1, bit);
    // JB (20h) branches on a set bit, JNB (30h) on a clear one.
    storeByte(0, bitClear != jumpWhenTrue ? 0x20 : 0x30);
    storeByte(2, 0);
    return true;
}

void Assembler::compileCondition(std::string text) {
    state_.instructionLength = 2;
    if (compileConditionForm(text, false)) return;
    const std::size_t equals = text.find('=');
    std::string left = text.substr(0, equals);
    std::string right = text.substr(equals + 1);
    std::int16_t leftClass = ClassNone;
    std::int16_t rightClass = ClassNone;
    std::int32_t leftValue = 0;
    std::int32_t rightValue = 0;
    classifyOperand(left, leftClass, leftValue);
    classifyOperand(right, rightClass, rightValue);
    state_.tokens[2] = right;
    if (rightValue > 255) {
        rightValue &= 0xFF;
        state_.errorNumber = rightClass == ClassImmediate ? Finding::ImmediateTooLarge
                                                          : Finding::InvalidDirectAddress;
    }
    state_.instructionLength = 3;
    storeByte(1, rightValue);
    if (!storeCompareOpcode(leftClass, leftValue, rightClass))
        state_.errorNumber = Finding::InvalidOperandCombination;
    if (state_.secondPass) {
        // The retried row reads its offset back as decimal text: "1C" comes back as 1.
        const std::string& code = state_.codeText.at(static_cast<std::size_t>(state_.currentRow));
        storeByte(2, leadingNumber(code.size() > 11 ? code.substr(11, 2) : std::string()));
    }
}

void Assembler::compileExitCondition(std::string text) {
    state_.tokens[3] = "3";
    state_.instructionLength = 2;
    if (compileConditionForm(text, true)) return;
    // Equality has no one-instruction inverse: CJNE over the jump that follows.
    const std::size_t equals = text.find('=');
    state_.tokens = {"CJNE", text.substr(0, equals), text.substr(equals + 1), "HIER+5"};
    encodeInstruction();
    growForNewRow();
    state_.tokens[3] = "1";
    state_.instructionBytes = {};
    state_.instructionLength = 2;
}

bool Assembler::compileIf() {
    std::string field = state_.tokens[1];
    if (endsWith(field, "THEN")) {
        field = cutEnd(field, 4);
    } else if (endsWith(field, "EXITIF")) {
        compileExitCondition(cutEnd(field, endsWith(field, "THENEXITIF") ? 10 : 6));
        compileExitIf();
        return true;
    } else if (endsWith(field, "EXITFOR")) {
        compileExitCondition(cutEnd(field, endsWith(field, "THENEXITFOR") ? 11 : 7));
        compileExitFor();
        return true;
    } else if (endsWith(field, "EXITLOOP")) {
        compileExitCondition(cutEnd(field, endsWith(field, "THENEXITLOOP") ? 12 : 8));
        compileExitLoop();
        return true;
    } else if (endsWith(field, "THENRET")) {
        // The false branch jumps over a RET that follows as a row of its own.
        compileCondition(cutEnd(field, 7));
        storeByte(state_.instructionLength - 1, 1);
        writeListingTail();
        growForNewRow();
        state_.instructionLength = 1;
        storeByte(0, 0x22);
        return true;
    }
    state_.instructionLength = 2;
    compileCondition(field);
    if (!state_.secondPass) {
        const auto level = static_cast<std::size_t>(state_.openIfCount.value());
        if (state_.ifStack.size() <= level) state_.ifStack.resize(level + 1);
        IfRow& row = state_.ifStack[level];
        row.branchLine = state_.currentRow;
        row.branchAddress = state_.codeAddress;
        row.branchLength = state_.instructionLength;
        ++state_.openIfCount;
    }
    return true;
}

bool Assembler::compileElse() {
    if (state_.secondPass) return true;
    if (state_.openIfCount == 0) {
        state_.errorNumber = Finding::ElseOrEndIfWithoutIf;
        state_.instructionLength = 0;
        return true;
    }
    IfRow& top = state_.ifStack[static_cast<std::size_t>(state_.openIfCount - 1)];
    if (state_.tokens[3] == "1") {
        state_.instructionLength = 0;
    } else {
        if (top.elseSeen != 0) state_.errorNumber = Finding::ElseTwice;
        top.elseSeen = 1;
        state_.instructionLength = 2;
        storeByte(0, 0x80);
    }
    // The waiting branch lands behind the jump over the else part.
    const std::int32_t distance =
        state_.codeAddress - top.branchAddress - top.branchLength + state_.instructionLength;
    if (distance > 127) markOutOfRange(top.branchLine);
    patchLastByte(top.branchLine, top.branchLength, distance);
    top.branchLine = state_.currentRow;
    top.branchAddress = state_.codeAddress;
    top.branchLength = 2;
    return true;
}

bool Assembler::compileElseIf() {
    std::string condition = state_.tokens[1];
    if (endsWith(condition, "THEN")) condition = cutEnd(condition, 4);
    state_.instructionLength = 2;
    if (!state_.secondPass) {
        if (state_.openIfCount == 0) {
            state_.errorNumber = Finding::ElseWithoutIf;
            return true;
        }
        if (state_.ifStack[static_cast<std::size_t>(state_.openIfCount - 1)].elseSeen != 0) {
            state_.errorNumber = Finding::ElseIfAfterElse;
            return true;
        }
        // The part before ends with a jump to behind END IF ...
        state_.tokens = {"EXIT", "IF", "", "1"};
        encodeInstruction();
        growForNewRow();
        state_.instructionBytes = {};
        // ... and the waiting branch comes here, to the new condition.
        compileElse();
    }
    compileCondition(condition);
    if (!state_.secondPass) {
        IfRow& top = state_.ifStack[static_cast<std::size_t>(state_.openIfCount - 1)];
        top.branchLine = state_.currentRow;
        top.branchAddress = state_.codeAddress;
        top.branchLength = state_.instructionLength;
    }
    return true;
}

bool Assembler::compileEndIf() {
    if (state_.openIfCount == 0) {
        state_.errorNumber = Finding::ElseOrEndIfWithoutIf;
    } else {
        --state_.openIfCount;
        IfRow& row = state_.ifStack[static_cast<std::size_t>(state_.openIfCount.value())];
        const std::int32_t distance = state_.codeAddress - row.branchAddress - row.branchLength;
        if (distance > 127) markOutOfRange(row.branchLine);
        patchLastByte(row.branchLine, row.branchLength, distance);
        row.elseSeen = 0;
        resolveExits(state_.exitIfPatches, state_.openIfCount, state_.codeAddress, 0);
    }
    // END IF has no code of its own.
    if (state_.errorNumber != Finding::None) recordError();
    setCodeText(std::string(kFourTabs));
    return false;
}

bool Assembler::compileExit() {
    auto& t = state_.tokens;
    if (t[3].empty()) t[3] = "2";
    if (t[1] == "FOR") {
        compileExitFor();
    } else if (t[1] == "LOOP") {
        compileExitLoop();
    } else if (t[1] == "IF") {
        compileExitIf();
    } else {
        state_.errorNumber = Finding::InvalidExit;
    }
    return true;
}

void Assembler::compileExitIf() {
    // 2 for a written EXIT IF, which leaves the IF around the one it stands
    // in; 1 for the jump of ELSEIF; 3 when an exit condition set the bytes.
    std::int32_t levels = leadingNumber(state_.tokens[3]);
    if (levels == 3) {
        levels = 1;
    } else {
        storeByte(0, 0x80);
        state_.instructionLength = 2;
    }
    if (state_.openIfCount < levels) {
        state_.errorNumber = Finding::ExitIfImpossible;
        recordError();
        return;
    }
    addExitEntry(state_.exitIfPatches, state_.openIfCount - levels);
}

void Assembler::compileExitFor() {
    if (leadingNumber(state_.tokens[3]) < 3) {
        storeByte(0, 0x80);
        state_.instructionLength = 2;
    }
    if (state_.openForCount < 1) {
        state_.errorNumber = Finding::ExitForOutsideFor;
        recordError();
        return;
    }
    addExitEntry(state_.exitForPatches, state_.openForCount - 1);
}

void Assembler::compileExitLoop() {
    if (leadingNumber(state_.tokens[3]) < 3) {
        storeByte(0, 0x80);
        state_.instructionLength = 2;
    }
    if (state_.openLoopCount < 1) {
        state_.errorNumber = Finding::ExitLoopOutsideLoop;
        recordError();
        return;
    }
    addExitEntry(state_.exitLoopPatches, state_.openLoopCount - 1);
}

bool Assembler::compileFor() {
    auto& t = state_.tokens;
    const std::string field = t[1];
    const std::size_t equals = field.find('=');
    if (equals != std::string::npos) {
        t[0] = "MOV";
        t[2] = field.substr(equals + 1);
        t[1] = field.substr(0, equals);
        encodeInstruction();
    } else {
        setCodeText(std::string(kFourTabs));
    }
    std::int16_t cls = ClassNone;
    std::int32_t counter = 0;
    classifyOperand(t[1], cls, counter);
    if (cls != ClassRegister && cls != ClassDirect) {
        state_.appendMarker(state_.currentRow, findingMarker(Finding::ExitConditionInvalid));
        return false;
    }
    if (counter > 255) {
        counter &= 0xFF;
        state_.errorNumber = Finding::InvalidDirectAddress;
    }
    const auto level = static_cast<std::size_t>(state_.openForCount.value());
    if (state_.forStack.size() <= level) state_.forStack.resize(level + 1);
    state_.forStack[level] = {counter, cls == ClassDirect ? 1 : 0, state_.codeAddress};
    ++state_.openForCount;
    return false;
}

bool Assembler::compileNext() {
    if (state_.openForCount == 0) {
        state_.errorNumber = Finding::NextWithoutFor;
        state_.instructionLength = 3;
        return true;
    }
    --state_.openForCount;
    const ForRow row = state_.forStack[static_cast<std::size_t>(state_.openForCount.value())];
    state_.tokens = {"DJNZ",
                     row.counterIsDirect != 0 ? std::to_string(row.counterValue)
                                              : "R" + std::to_string(row.counterValue),
                     std::to_string(row.loopHead), ""};
    encodeInstruction();
    resolveExits(state_.exitForPatches, state_.openForCount, state_.codeAddress, 0);
    return false;
}

bool Assembler::compileLoop() {
    const auto level = static_cast<std::size_t>(state_.openLoopCount.value());
    if (state_.loopStack.size() <= level) state_.loopStack.resize(level + 1);
    state_.loopStack[level].loopHead = state_.codeAddress;
    const std::string field = state_.tokens[1];
    if (startsWith(field, "WHILE")) {
        const std::string condition = field.substr(5);
        if (condition.empty()) {
            state_.errorNumber = Finding::LoopSyntaxError;
            return true;
        }
        state_.instructionLength = 2;
        compileCondition(condition);
        if (!state_.secondPass) {
            state_.loopStack[level].whileLine = state_.currentRow;
            state_.loopStack[level].whileLength = state_.instructionLength;
        }
        ++state_.openLoopCount;
        return true;
    }
    if (field.empty()) {
        // A plain LOOP leaves an earlier WHILE of this depth in place, on purpose.
        setCodeText(std::string(kFourTabs));
        state_.instructionLength = 0;
        ++state_.openLoopCount;
        return false;
    }
    state_.errorNumber = Finding::LoopSyntaxError;
    return true;
}

bool Assembler::compileLoopEnd() {
    const bool until = state_.tokens[0] == "UNTIL";
    state_.instructionLength = 2;
    if (state_.openLoopCount == 0) {
        state_.errorNumber = Finding::EndLoopWithoutLoop;
        recordError();
        return true;
    }
    --state_.openLoopCount;
    const LoopRow row = state_.loopStack[static_cast<std::size_t>(state_.openLoopCount.value())];
    if (!until) {
        storeByte(0, 0x80);
    } else if (state_.tokens[1].empty()) {
        state_.errorNumber = Finding::LoopSyntaxError;
        return true;
    } else {
        compileCondition(state_.tokens[1]);
    }
    std::int32_t back = row.loopHead + 256 - state_.codeAddress - state_.instructionLength;
    if (back < 128) {
        state_.errorNumber = Finding::RelativeRangeExceeded;
        back = 0;
    }
    storeByte(state_.instructionLength - 1, back);
    resolveExits(state_.exitLoopPatches, state_.openLoopCount, state_.codeAddress,
                 state_.instructionLength);
    if (row.whileLength != 0) {
        const auto source = static_cast<std::int32_t>(parseHexPrefix(
            state_.codeText.at(static_cast<std::size_t>(row.whileLine)).substr(0, 4)));
        const std::int32_t distance =
            state_.codeAddress - source - row.whileLength + state_.instructionLength;
        if (distance > 127) state_.errorNumber = Finding::RelativeRangeExceeded;
        patchLastByte(row.whileLine, row.whileLength, distance);
    }
    return true;
}

}  // namespace korvex
