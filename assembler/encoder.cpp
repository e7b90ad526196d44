// encodeInstruction: the instruction set as a fixed chain of comparisons. The
// order of the chain is part of the behaviour; every statement that reaches
// its end gets the listing tail, error or not, so it keeps its place.

#include <algorithm>
#include <unordered_map>

#include "assembler/assembler.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {
namespace {

// The words the chain compares; each leads to one family. The words are all
// different, so a lookup serves the chain's exact comparisons in its order.
// One line per group reads better here than one line per name.
// clang-format off
enum class Family {
    None, Arithmetic, IncDec, MulDiv, AccumulatorOrBit, Logic, PushPop, Xchd, MovxMovc, Mov,
    ReturnOrNop, ConditionalJump, BitJump, Djnz, Cjne, LongJumpOrCall, AbsoluteJumpOrCall, Table,
    Org, If, Else, ElseIf, EndOrUntil, Loop, Exit, For, Next, Cpu, Hash
};

Family familyOf(const std::string& mnemonic) {
    static const std::unordered_map<std::string_view, Family> kFamilies = {
        {"ADD", Family::Arithmetic}, {"ADDC", Family::Arithmetic}, {"SUBB", Family::Arithmetic},
        {"XCH", Family::Arithmetic}, {"INC", Family::IncDec}, {"DEC", Family::IncDec},
        {"MUL", Family::MulDiv}, {"DIV", Family::MulDiv}, {"DA", Family::AccumulatorOrBit},
        {"CLR", Family::AccumulatorOrBit}, {"CPL", Family::AccumulatorOrBit},
        {"RL", Family::AccumulatorOrBit}, {"RLC", Family::AccumulatorOrBit},
        {"RR", Family::AccumulatorOrBit}, {"RRC", Family::AccumulatorOrBit},
        {"SWAP", Family::AccumulatorOrBit}, {"SETB", Family::AccumulatorOrBit},
        {"ANL", Family::Logic}, {"ORL", Family::Logic}, {"XRL", Family::Logic},
        {"PUSH", Family::PushPop}, {"POP", Family::PushPop}, {"XCHD", Family::Xchd},
        {"MOVX", Family::MovxMovc}, {"MOVC", Family::MovxMovc}, {"MOV", Family::Mov},
        {"RET", Family::ReturnOrNop}, {"RETI", Family::ReturnOrNop}, {"NOP", Family::ReturnOrNop},
        {"JC", Family::ConditionalJump}, {"JNC", Family::ConditionalJump},
        {"JZ", Family::ConditionalJump}, {"JNZ", Family::ConditionalJump},
        {"SJMP", Family::ConditionalJump}, {"JB", Family::BitJump}, {"JNB", Family::BitJump},
        {"JBC", Family::BitJump}, {"DJNZ", Family::Djnz}, {"CJNE", Family::Cjne},
        {"LCALL", Family::LongJumpOrCall}, {"LJMP", Family::LongJumpOrCall},
        {"JMP", Family::LongJumpOrCall}, {"CALL", Family::LongJumpOrCall},
        {"ACALL", Family::AbsoluteJumpOrCall}, {"AJMP", Family::AbsoluteJumpOrCall},
        {"DB", Family::Table}, {"DW", Family::Table}, {"ORG", Family::Org}, {"IF", Family::If},
        {"ELSE", Family::Else}, {"ELSEIF", Family::ElseIf}, {"END", Family::EndOrUntil},
        {"UNTIL", Family::EndOrUntil}, {"LOOP", Family::Loop}, {"EXIT", Family::Exit},
        {"FOR", Family::For}, {"NEXT", Family::Next}, {"CPU", Family::Cpu}, {"#", Family::Hash}};
    // clang-format on
    const auto hit = kFamilies.find(mnemonic);
    return hit == kFamilies.end() ? Family::None : hit->second;
}

}  // namespace

void Assembler::encodeInstruction() {
    growRowsTo(state_.currentRow);
    SourceRow& row = state_.sourceTable[static_cast<std::size_t>(state_.currentRow)];
    row.retry = false;
    state_.clearMarker(state_.currentRow);

    auto& t = state_.tokens;
    upperCaseInPlace(t[0]);
    for (std::size_t i = 1; i < t.size(); ++i) {
        std::string& token = t[i];
        token.erase(std::remove(token.begin(), token.end(), ' '), token.end());
        upperCaseInPlace(token);
    }
    state_.instructionBytes = {};
    state_.instructionLength = 1;

    const std::string mnemonic = t[0];
    switch (familyOf(mnemonic)) {
        case Family::Arithmetic: encodeArithmetic(); break;
        case Family::IncDec: encodeIncDec(); break;
        case Family::MulDiv: encodeMulDiv(); break;
        case Family::AccumulatorOrBit: encodeAccumulatorOrBit(); break;
        case Family::Logic: encodeLogic(); break;
        case Family::PushPop: encodePushPop(); break;
        case Family::Xchd: encodeXchd(); break;
        case Family::MovxMovc: encodeMovxMovc(); break;
        case Family::Mov: encodeMov(); break;
        case Family::ReturnOrNop: encodeReturnOrNop(); break;
        case Family::ConditionalJump: encodeConditionalJump(); break;
        case Family::BitJump: encodeBitJump(); break;
        case Family::Djnz: encodeDjnz(); break;
        case Family::Cjne: encodeCjne(); break;
        case Family::LongJumpOrCall: encodeLongJumpOrCall(); break;
        case Family::AbsoluteJumpOrCall: encodeAbsoluteJumpOrCall(); break;
        case Family::Table:
            // Tables write their own code text and move the counter themselves.
            compileTable();
            if (state_.errorNumber != Finding::None) recordError();
            return;
        case Family::Org:
            if (encodeOrg()) return;
            break;
        case Family::If:
            if (!compileIf()) return;
            break;
        case Family::Else:
            if (!t[1].empty()) {
                state_.errorNumber = Finding::InvalidOperandCombination;
            } else if (!compileElse()) {
                return;
            }
            break;
        case Family::ElseIf:
            if (!compileElseIf()) return;
            break;
        case Family::EndOrUntil:
            // UNTIL IF acts as END IF: the test for IF is made for both words.
            if (t[1] == "IF") {
                compileEndIf();
                return;
            }
            if (mnemonic == "UNTIL" || t[1] == "LOOP") {
                if (!compileLoopEnd()) return;
            } else {
                encodeEnd();
            }
            break;
        case Family::Loop:
            if (!compileLoop()) return;
            break;
        case Family::Exit:
            if (!compileExit()) return;
            break;
        case Family::For:
            if (!t[2].empty()) {
                state_.errorNumber = Finding::SyntaxError;
            } else if (!compileFor()) {
                return;
            }
            break;
        case Family::Next:
            if (!compileNext()) return;
            break;
        case Family::Cpu:
            readCpuDriver(t[0], t[1]);
            setCodeText(std::string(kFourTabs));
            return;
        case Family::Hash:
            state_.errorNumber = Finding::BlankBehindHash;  // the line had a blank behind "#"
            break;
        case Family::None:
            if (startsWith(mnemonic, "CPU=")) {
                readCpuDriver(t[0], "");
                setCodeText(std::string(kFourTabs));
                return;
            }
            if (encodeAssignment()) return;
            encodeImplicitCall();
            break;
    }
    writeListingTail();
}

void Assembler::writeListingTail() {
    if (state_.errorNumber != Finding::None) recordError();
    const int length = state_.instructionLength;
    growRowsTo(state_.currentRow);
    // "AAAA\tBB\tBB\tBB\t": at most 14 characters, so the text stays in the string itself.
    constexpr char kDigits[] = "0123456789ABCDEF";
    char buffer[24];
    std::size_t at = 0;
    const auto hex2 = [&](std::int64_t value) {
        buffer[at++] = kDigits[(value >> 4) & 0xF];
        buffer[at++] = kDigits[value & 0xF];
    };
    hex2(state_.codeAddress >> 8);
    hex2(state_.codeAddress);
    buffer[at++] = '\t';
    const int shown = std::clamp(static_cast<int>(length), 0, 3);
    for (int i = 0; i < shown; ++i) {
        hex2(state_.instructionBytes[static_cast<std::size_t>(i)]);
        buffer[at++] = '\t';
    }
    for (int i = shown; i < 3; ++i) buffer[at++] = '\t';
    state_.codeText[static_cast<std::size_t>(state_.currentRow)].assign(buffer, at);
    state_.codeAddress = checkedAdd(state_.codeAddress, length);
}

void Assembler::genericError() {
    if (state_.errorNumber == Finding::None)
        state_.errorNumber = Finding::InvalidOperandCombination;
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
        state_.errorNumber = Finding::OrgAddressNotRecognised;
        return false;  // the failed ORG takes the tail with length 0
    }
    if (state_.codeAddress > value) {
        state_.errorNumber = Finding::AddressInWrittenRange;
        recordError();
    }
    state_.codeAddress = value;
    setCodeText(std::string(kFourTabs));
    return true;
}

void Assembler::encodeEnd() {
    // The program stop of the language: an endless SJMP onto itself.
    if (!state_.tokens[1].empty() || !state_.tokens[2].empty())
        state_.errorNumber = Finding::SyntaxError;
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
            row.retry = true;
            state_.errorNumber = Finding::BlockBoundaryCrossed;
        }
    } else {
        // The second pass then sees an ordinary call statement.
        row.retry = true;
        state_.errorNumber = Finding::InstructionNotRecognised;
        row.statement = state_.keepText((state_.useLongCall ? "LCALL " : "ACALL ") +
                                        std::string(state_.textOf(row.statement)));
    }
}

}  // namespace korvex
