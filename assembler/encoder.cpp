// encodeInstruction: the instruction set as a fixed chain of comparisons. The
// order of the chain is part of the behaviour; every statement that reaches
// its end gets the listing tail, error or not, so it keeps its place.

#include "assembler/assembler.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {
namespace {

bool isOneOf(const std::string& word, std::initializer_list<const char*> words) {
    for (const char* w : words) {
        if (word == w) return true;
    }
    return false;
}

}  // namespace

void Assembler::encodeInstruction() {
    growRowsTo(state_.currentRow);
    SourceRow& row = state_.sourceTable[static_cast<std::size_t>(state_.currentRow)];
    row.retryMark.clear();
    row.marker.clear();

    auto& t = state_.tokens;
    t[0] = upperCase(t[0]);
    for (std::size_t i = 1; i < t.size(); ++i) t[i] = upperCase(removeAll(t[i], ' '));
    state_.instructionBytes = {};
    state_.instructionLength = 1;

    const std::string mnemonic = t[0];
    if (isOneOf(mnemonic, {"ADD", "ADDC", "SUBB", "XCH"})) {
        encodeArithmetic();
    } else if (isOneOf(mnemonic, {"INC", "DEC"})) {
        encodeIncDec();
    } else if (isOneOf(mnemonic, {"MUL", "DIV"})) {
        encodeMulDiv();
    } else if (isOneOf(mnemonic, {"DA", "CLR", "CPL", "RL", "RLC", "RR", "RRC", "SWAP", "SETB"})) {
        encodeAccumulatorOrBit();
    } else if (isOneOf(mnemonic, {"ANL", "ORL", "XRL"})) {
        encodeLogic();
    } else if (isOneOf(mnemonic, {"PUSH", "POP"})) {
        encodePushPop();
    } else if (mnemonic == "XCHD") {
        encodeXchd();
    } else if (mnemonic == "MOVX" || mnemonic == "MOVC") {
        encodeMovxMovc();
    } else if (mnemonic == "MOV") {
        encodeMov();
    } else if (isOneOf(mnemonic, {"RET", "RETI", "NOP"})) {
        encodeReturnOrNop();
    } else if (isOneOf(mnemonic, {"JC", "JNC", "JZ", "JNZ", "SJMP"})) {
        encodeConditionalJump();
    } else if (isOneOf(mnemonic, {"JB", "JNB", "JBC"})) {
        encodeBitJump();
    } else if (mnemonic == "DJNZ") {
        encodeDjnz();
    } else if (mnemonic == "CJNE") {
        encodeCjne();
    } else if (isOneOf(mnemonic, {"LCALL", "LJMP", "JMP", "CALL"})) {
        encodeLongJumpOrCall();
    } else if (mnemonic == "ACALL" || mnemonic == "AJMP") {
        encodeAbsoluteJumpOrCall();
    } else if (mnemonic == "DB" || mnemonic == "DW") {
        // Tables write their own code text and move the counter themselves.
        compileTable();
        if (state_.errorNumber != 0) recordError();
        return;
    } else if (mnemonic == "ORG") {
        if (encodeOrg()) return;
    } else if (mnemonic == "IF") {
        if (!compileIf()) return;
    } else if (mnemonic == "ELSE") {
        if (!t[1].empty()) {
            state_.errorNumber = 1;
        } else if (!compileElse()) {
            return;
        }
    } else if (mnemonic == "ELSEIF") {
        if (!compileElseIf()) return;
    } else if ((mnemonic == "END" || mnemonic == "UNTIL") && t[1] == "IF") {
        compileEndIf();
        return;
    } else if ((mnemonic == "END" && t[1] == "LOOP") || mnemonic == "UNTIL") {
        if (!compileLoopEnd()) return;
    } else if (mnemonic == "END") {
        encodeEnd();
    } else if (mnemonic == "LOOP") {
        if (!compileLoop()) return;
    } else if (mnemonic == "EXIT") {
        if (!compileExit()) return;
    } else if (mnemonic == "FOR") {
        if (!t[2].empty()) {
            state_.errorNumber = 32;
        } else if (!compileFor()) {
            return;
        }
    } else if (mnemonic == "NEXT") {
        if (!compileNext()) return;
    } else if (mnemonic == "CPU") {
        readCpuDriver(t[0], t[1]);
        setCodeText(std::string(kFourTabs));
        return;
    } else if (mnemonic == "#") {
        state_.errorNumber = 29;  // the line had a blank behind "#"
    } else if (startsWith(mnemonic, "CPU=")) {
        readCpuDriver(t[0], "");
        setCodeText(std::string(kFourTabs));
        return;
    } else {
        if (encodeAssignment()) return;
        encodeImplicitCall();
    }
    writeListingTail();
}

void Assembler::writeListingTail() {
    if (state_.errorNumber != 0) recordError();
    const int length = state_.instructionLength;
    std::string text = hexDigits(state_.codeAddress, 4) + "\t";
    for (int i = 0; i < length; ++i) {
        text += hexDigits(state_.instructionBytes[static_cast<std::size_t>(i)], 2) + "\t";
    }
    text.append(static_cast<std::size_t>(std::max(0, 3 - length)), '\t');
    setCodeText(text);
    state_.codeAddress = checkedAdd(state_.codeAddress, length);
}

void Assembler::genericError() {
    if (state_.errorNumber == 0) state_.errorNumber = 1;
}

void Assembler::storeByte(int index, std::int64_t value) {
    state_.instructionBytes[static_cast<std::size_t>(index)] = checkedByte(value);
}

void Assembler::storeLongTarget(std::int32_t target) {
    // High byte first, and the value is not masked: above FFFFh it overflows.
    storeByte(1, target / 256);
    storeByte(2, target % 256);
}

bool Assembler::sameBlock(std::int32_t from, std::int32_t target) const {
    return from / 2048 == target / 2048;
}

bool Assembler::encodeOrg() {
    state_.instructionLength = 0;
    std::int32_t value = kValueContext;
    bool found = false;
    evaluateExpression(state_.tokens[1], value, found);
    if (!found) {
        state_.errorNumber = 9;
        return false;  // the failed ORG takes the tail with length 0
    }
    if (state_.codeAddress > value) {
        state_.errorNumber = 11;
        recordError();
    }
    state_.codeAddress = value;
    setCodeText(std::string(kFourTabs));
    return true;
}

void Assembler::encodeEnd() {
    // The program stop of the language: an endless SJMP onto itself.
    if (!state_.tokens[1].empty() || !state_.tokens[2].empty()) state_.errorNumber = 32;
    state_.instructionLength = 2;
    storeByte(0, 0x80);
    storeByte(1, 0xFE);
}

bool Assembler::encodeAssignment() {
    auto& t = state_.tokens;
    const std::string joined = t[0] + t[1] + t[2];
    const std::size_t equals = joined.find('=');
    if (equals == std::string::npos) return false;
    t[0] = "MOV";
    t[1] = joined.substr(0, equals);
    t[2] = joined.substr(equals + 1);
    encodeInstruction();
    return true;
}

void Assembler::encodeImplicitCall() {
    auto& t = state_.tokens;
    // Blanks and commas between the words have no meaning: INIT TIMER names INITTIMER.
    std::string joined = t[0] + t[1] + t[2];
    state_.instructionLength = state_.useLongCall ? 3 : 2;
    std::int32_t target = kLabelContext;
    bool found = false;
    evaluateExpression(joined, target, found);
    SourceRow& row = state_.sourceTable[static_cast<std::size_t>(state_.currentRow)];
    if (found && state_.useLongCall) {
        storeByte(0, 0x12);
        storeLongTarget(target);
    } else if (found) {
        if (sameBlock(state_.codeAddress + state_.instructionLength, target)) {
            storeByte(0, 0x11 + 32 * ((target / 256) % 8));
            storeByte(1, target % 256);
        } else {
            row.retryMark = "?";
            state_.errorNumber = 5;
        }
    } else {
        // The second pass then sees an ordinary call statement.
        row.retryMark = "?";
        state_.errorNumber = 28;
        row.statement = (state_.useLongCall ? "LCALL " : "ACALL ") + row.statement;
    }
}

}  // namespace korvex
