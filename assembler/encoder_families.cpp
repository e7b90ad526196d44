// The machine-instruction families of the encoding chain. Each form is
// written out; the order of the checks decides which finding a faulty
// statement reports.

#include "assembler/assembler.h"
#include "base/text.h"

namespace korvex {
namespace {

// Value above 255: keep the low byte and report `finding`.
void maskByte(std::int32_t& value, Finding& errorNumber, Finding finding) {
    if (value > 255) {
        value &= 0xFF;
        errorNumber = finding;
    }
}

}  // namespace

void Assembler::encodeArithmetic() {
    auto& t = state_.tokens;
    if (t[1] != "A") {
        genericError();
        return;
    }
    const int base = t[0] == "ADD" ? 0x24 : t[0] == "ADDC" ? 0x34 : t[0] == "SUBB" ? 0x94 : 0xC4;
    storeByte(0, base);
    std::int16_t cls = ClassNone;
    std::int32_t value = 0;
    classifyOperand(t[2], cls, value);
    maskByte(value, state_.errorNumber, Finding::ValueTooLarge);
    if (cls != ClassRegister && cls != ClassIndirect) state_.instructionLength = 2;
    switch (cls) {
        case ClassImmediate:
            if (t[0] == "XCH") {
                state_.errorNumber = Finding::InvalidOperandCombination;
            } else {
                storeByte(1, value);
            }
            break;
        case ClassDirect:
            storeByte(0, base + 1);
            storeByte(1, value);
            break;
        case ClassIndirect: storeByte(0, base + 2 + value); break;
        case ClassRegister: storeByte(0, base + 4 + value); break;
        default: genericError();
    }
}

void Assembler::encodeIncDec() {
    auto& t = state_.tokens;
    if (!t[2].empty()) {
        genericError();
        return;
    }
    if (t[0] == "INC" && t[1] == "DPTR") {
        storeByte(0, 0xA3);
        return;
    }
    const int base = t[0] == "INC" ? 0x04 : 0x14;
    storeByte(0, base);
    std::int16_t cls = ClassNone;
    std::int32_t value = 0;
    classifyOperand(t[1], cls, value);
    maskByte(value, state_.errorNumber, Finding::InvalidDirectAddress);
    switch (cls) {
        case ClassAccumulator: break;
        case ClassDirect:
            state_.instructionLength = 2;
            storeByte(0, base + 1);
            storeByte(1, value);
            break;
        case ClassIndirect: storeByte(0, base + 2 + value); break;
        case ClassRegister: storeByte(0, base + 4 + value); break;
        default: state_.instructionLength = 2; genericError();
    }
}

void Assembler::encodeMulDiv() {
    auto& t = state_.tokens;
    if (t[1] != "AB" || !t[2].empty()) {
        state_.errorNumber = Finding::InvalidOperandCombination;
        return;
    }
    storeByte(0, t[0] == "MUL" ? 0xA4 : 0x84);
}

void Assembler::encodeAccumulatorOrBit() {
    auto& t = state_.tokens;
    const std::string& m = t[0];
    if (!t[2].empty() || t[1].empty()) {
        state_.errorNumber = Finding::InvalidOperandCombination;
        return;
    }
    if (t[1] == "A") {
        static const std::pair<const char*, int> kAccumulatorForms[] = {
            {"DA", 0xD4},  {"CLR", 0xE4}, {"CPL", 0xF4}, {"RL", 0x23},
            {"RLC", 0x33}, {"RR", 0x03},  {"RRC", 0x13}, {"SWAP", 0xC4}};
        for (const auto& [word, byte] : kAccumulatorForms) {
            if (m == word) {
                storeByte(0, byte);
                return;
            }
        }
        state_.errorNumber = Finding::InvalidOperandCombination;  // SETB A
        return;
    }
    const bool bitForm = m == "CLR" || m == "CPL" || m == "SETB";
    if (t[1] == "C") {
        if (bitForm) {
            storeByte(0, m == "CLR" ? 0xC3 : m == "CPL" ? 0xB3 : 0xD3);
        } else {
            state_.errorNumber = Finding::InvalidOperandCombination;
        }
        return;
    }
    state_.instructionLength = 2;
    std::int16_t cls = ClassNone;
    std::int32_t bit = 0;
    parseBitOperand(t[1], cls, bit);
    maskByte(bit, state_.errorNumber, Finding::BitNotRecognised);
    if (cls != ClassBit) state_.errorNumber = Finding::BitNotRecognised;
    storeByte(1, bit);
    if (bitForm) {
        storeByte(0, m == "CLR" ? 0xC2 : m == "CPL" ? 0xB2 : 0xD2);
    } else {
        state_.errorNumber = Finding::InvalidOperandCombination;
    }
}

void Assembler::encodeLogic() {
    auto& t = state_.tokens;
    const std::string& m = t[0];
    state_.instructionLength = 2;
    if (t[1] == "C" && m != "XRL") {
        int opcode = m == "ANL" ? 0x82 : 0x72;
        if (!t[2].empty() && t[2].front() == '/') {
            opcode += 0x2E;
            t[2].erase(0, 1);
        }
        storeByte(0, opcode);
        std::int16_t cls = ClassNone;
        std::int32_t bit = 0;
        parseBitOperand(t[2], cls, bit);
        if (cls != ClassBit) state_.errorNumber = Finding::BitNotRecognised;
        storeByte(1, bit);
        return;
    }
    const int base = m == "ANL" ? 0x54 : m == "ORL" ? 0x44 : 0x64;
    if (t[1] == "A") {
        storeByte(0, base);
        std::int16_t cls = ClassNone;
        std::int32_t value = 0;
        classifyOperand(t[2], cls, value);
        maskByte(value, state_.errorNumber, Finding::ValueTooLarge);
        switch (cls) {
            case ClassImmediate: storeByte(1, value); break;
            case ClassDirect:
                storeByte(0, base + 1);
                storeByte(1, value);
                break;
            case ClassIndirect:
                state_.instructionLength = 1;
                storeByte(0, base + 2 + value);
                break;
            case ClassRegister:
                state_.instructionLength = 1;
                storeByte(0, base + 4 + value);
                break;
            default: genericError();
        }
        return;
    }
    if (t[2] == "A") {
        std::int16_t cls = ClassNone;
        std::int32_t direct = 0;
        classifyOperand(t[1], cls, direct);
        maskByte(direct, state_.errorNumber, Finding::InvalidDirectAddress);
        if (cls == ClassDirect) {
            storeByte(0, base - 2);
            storeByte(1, direct);
        } else {
            genericError();
        }
        return;
    }
    if (!t[2].empty() && t[2].front() == '#') {
        state_.instructionLength = 3;
        std::int16_t directClass = ClassNone;
        std::int16_t immediateClass = ClassNone;
        std::int32_t direct = 0;
        std::int32_t immediate = 0;
        classifyOperand(t[1], directClass, direct);
        classifyOperand(t[2], immediateClass, immediate);
        maskByte(direct, state_.errorNumber, Finding::InvalidDirectAddress);
        maskByte(immediate, state_.errorNumber, Finding::ImmediateTooLarge);
        if (directClass == ClassDirect && immediateClass == ClassImmediate) {
            storeByte(0, base - 1);
            storeByte(1, direct);
            storeByte(2, immediate);
        } else {
            genericError();
        }
        return;
    }
    genericError();
}

void Assembler::encodePushPop() {
    auto& t = state_.tokens;
    state_.instructionLength = 2;
    if (!t[2].empty()) {
        genericError();
        return;
    }
    std::int16_t cls = ClassNone;
    std::int32_t direct = 0;
    classifyOperand(t[1], cls, direct);
    maskByte(direct, state_.errorNumber, Finding::InvalidDirectAddress);
    if (cls != ClassDirect) state_.errorNumber = Finding::VariableNotRecognised;
    storeByte(0, t[0] == "PUSH" ? 0xC0 : 0xD0);
    storeByte(1, direct);
}

void Assembler::encodeXchd() {
    auto& t = state_.tokens;
    std::int16_t cls = ClassNone;
    std::int32_t reg = 0;
    if (t[1] == "A") classifyOperand(t[2], cls, reg);
    if (cls == ClassIndirect) {
        storeByte(0, 0xD6 + reg);
    } else {
        genericError();
    }
}

void Assembler::encodeMovxMovc() {
    auto& t = state_.tokens;
    static const struct {
        const char* mnemonic;
        const char* first;
        const char* second;
        int byte;
    } kForms[] = {
        {"MOVX", "A", "@R0", 0xE2},     {"MOVX", "A", "@R1", 0xE3},   {"MOVX", "A", "@DPTR", 0xE0},
        {"MOVX", "@R0", "A", 0xF2},     {"MOVX", "@R1", "A", 0xF3},   {"MOVX", "@DPTR", "A", 0xF0},
        {"MOVC", "A", "@A+DPTR", 0x93}, {"MOVC", "A", "@A+PC", 0x83},
    };
    for (const auto& form : kForms) {
        if (t[0] == form.mnemonic && t[1] == form.first && t[2] == form.second) {
            storeByte(0, form.byte);
            return;
        }
    }
    state_.errorNumber = Finding::InvalidOperandCombination;
}

void Assembler::encodeMov() {
    auto& t = state_.tokens;
    if (t[1] == "C" || t[2] == "C") {
        const bool toCarry = t[1] == "C";
        state_.instructionLength = 2;
        storeByte(0, toCarry ? 0xA2 : 0x92);
        std::int16_t cls = ClassNone;
        std::int32_t bit = 0;
        parseBitOperand(toCarry ? t[2] : t[1], cls, bit);
        if (cls == ClassBit) {
            storeByte(1, bit);
        } else {
            genericError();
        }
        return;
    }
    if (t[1] == "A" || t[2] == "A") {
        const bool toAccumulator = t[1] == "A";
        std::int16_t cls = ClassNone;
        std::int32_t value = 0;
        classifyOperand(toAccumulator ? t[2] : t[1], cls, value);
        maskByte(value, state_.errorNumber, Finding::ValueTooLarge);
        switch (cls) {
            case ClassRegister: storeByte(0, (toAccumulator ? 0xE8 : 0xF8) + value); break;
            case ClassIndirect: storeByte(0, (toAccumulator ? 0xE6 : 0xF6) + value); break;
            case ClassDirect:
                state_.instructionLength = 2;
                storeByte(0, toAccumulator ? 0xE5 : 0xF5);
                storeByte(1, value);
                break;
            case ClassImmediate:
                state_.instructionLength = 2;
                if (toAccumulator) {
                    storeByte(0, 0x74);
                    storeByte(1, value);
                } else {
                    genericError();
                }
                break;
            default: state_.instructionLength = 2; genericError();
        }
        return;
    }
    if (t[1] == "DPTR") {
        state_.instructionLength = 3;
        std::int16_t cls = ClassNone;
        std::int32_t value = 0;
        classifyOperand(t[2], cls, value);
        if (cls == ClassImmediate) {
            storeByte(0, 0x90);
            storeLongTarget(value);
        } else {
            genericError();
        }
        return;
    }
    encodeMovDirectForms();
}

void Assembler::encodeMovDirectForms() {
    auto& t = state_.tokens;
    std::int16_t destinationClass = ClassNone;
    std::int16_t sourceClass = ClassNone;
    std::int32_t destination = 0;
    std::int32_t source = 0;
    classifyOperand(t[1], destinationClass, destination);
    classifyOperand(t[2], sourceClass, source);
    maskByte(source, state_.errorNumber, Finding::ImmediateTooLarge);
    maskByte(destination, state_.errorNumber, Finding::InvalidDirectAddress);
    const bool directDestination = destinationClass == ClassDirect;
    state_.instructionLength =
        directDestination && (sourceClass == ClassImmediate || sourceClass == ClassDirect) ? 3 : 2;

    auto pair = [&](std::int16_t d, std::int16_t s) {
        return destinationClass == d && sourceClass == s;
    };
    if (pair(ClassRegister, ClassDirect)) {
        storeByte(0, 0xA8 + destination);
        storeByte(1, source);
    } else if (pair(ClassRegister, ClassImmediate)) {
        storeByte(0, 0x78 + destination);
        storeByte(1, source);
    } else if (pair(ClassIndirect, ClassDirect)) {
        storeByte(0, 0xA6 + destination);
        storeByte(1, source);
    } else if (pair(ClassIndirect, ClassImmediate)) {
        storeByte(0, 0x76 + destination);
        storeByte(1, source);
    } else if (pair(ClassDirect, ClassRegister)) {
        storeByte(0, 0x88 + source);
        storeByte(1, destination);
    } else if (pair(ClassDirect, ClassIndirect)) {
        storeByte(0, 0x86 + source);
        storeByte(1, destination);
    } else if (pair(ClassDirect, ClassImmediate)) {
        storeByte(0, 0x75);
        storeByte(1, destination);
        storeByte(2, source);
    } else if (pair(ClassDirect, ClassDirect)) {
        storeByte(0, 0x85);
        storeByte(1, source);
        storeByte(2, destination);
    } else if (destinationClass == ClassRegister || destinationClass == ClassIndirect ||
               sourceClass == ClassRegister || sourceClass == ClassIndirect) {
        state_.errorNumber = Finding::InvalidOperandCombination;
    } else {
        genericError();
    }
}

void Assembler::encodeReturnOrNop() {
    auto& t = state_.tokens;
    if (!t[1].empty() || !t[2].empty()) {
        state_.errorNumber = Finding::InvalidOperandCombination;
        return;
    }
    storeByte(0, t[0] == "RET" ? 0x22 : t[0] == "RETI" ? 0x32 : 0x00);
}

void Assembler::encodeConditionalJump() {
    auto& t = state_.tokens;
    const std::string& m = t[0];
    state_.instructionLength = 2;
    std::int32_t target = kLabelContext;
    bool found = false;
    evaluateExpression(t[1], target, found);
    storeByte(0, m == "JC"    ? 0x40
                 : m == "JNC" ? 0x50
                 : m == "JZ"  ? 0x60
                 : m == "JNZ" ? 0x70
                              : 0x80);
    if (!t[2].empty()) {
        state_.errorNumber = Finding::InvalidOperandCombination;
    } else if (!found) {
        state_.errorNumber = Finding::UnknownInstructionOrTarget;
    } else {
        storeByte(1, relativeOffset(target, 2));
    }
}

void Assembler::encodeBitJump() {
    auto& t = state_.tokens;
    const std::string& m = t[0];
    state_.instructionLength = 3;
    std::int32_t target = kLabelContext;
    bool found = false;
    evaluateExpression(t[2], target, found);
    std::int16_t cls = ClassNone;
    std::int32_t bit = 0;
    parseBitOperand(t[1], cls, bit);
    if (cls != ClassBit) {
        state_.errorNumber = Finding::BitNotRecognised;
        return;
    }
    storeByte(0, m == "JB" ? 0x20 : m == "JNB" ? 0x30 : 0x10);
    storeByte(1, bit);
    if (found) {
        storeByte(2, relativeOffset(target, 3));
    } else {
        state_.errorNumber = Finding::UnknownInstructionOrTarget;
    }
}

void Assembler::encodeDjnz() {
    auto& t = state_.tokens;
    std::int32_t target = kLabelContext;
    bool found = false;
    evaluateExpression(t[2], target, found);
    std::int16_t cls = ClassNone;
    std::int32_t counter = 0;
    classifyOperand(t[1], cls, counter);
    state_.instructionLength = cls == ClassRegister ? 2 : 3;
    maskByte(counter, state_.errorNumber, Finding::InvalidDirectAddress);
    if (!found) state_.errorNumber = Finding::UnknownInstructionOrTarget;
    if (cls == ClassRegister) {
        storeByte(0, 0xD8 + counter);
        if (found) storeByte(1, relativeOffset(target, 2));
    } else if (cls == ClassDirect) {
        storeByte(0, 0xD5);
        storeByte(1, counter);
        if (found) storeByte(2, relativeOffset(target, 3));
    } else {
        genericError();
    }
}

void Assembler::encodeCjne() {
    auto& t = state_.tokens;
    state_.instructionLength = 3;
    std::int32_t target = kLabelContext;
    bool found = false;
    evaluateExpression(t[3], target, found);
    if (found) {
        storeByte(2, relativeOffset(target, 3));
    } else {
        state_.errorNumber = Finding::UnknownInstructionOrTarget;
    }
    std::int16_t leftClass = ClassNone;
    std::int16_t rightClass = ClassNone;
    std::int32_t left = 0;
    std::int32_t right = 0;
    classifyOperand(t[1], leftClass, left);
    classifyOperand(t[2], rightClass, right);
    maskByte(
        right, state_.errorNumber,
        rightClass == ClassImmediate ? Finding::ImmediateTooLarge : Finding::InvalidDirectAddress);
    storeByte(1, right);
    if (!storeCompareOpcode(leftClass, left, rightClass)) genericError();
}

bool Assembler::storeCompareOpcode(std::int16_t leftClass, std::int32_t left,
                                   std::int16_t rightClass) {
    // The four CJNE forms: A with direct or immediate, Rn or @Ri with immediate.
    if (leftClass == ClassAccumulator && rightClass == ClassDirect) {
        storeByte(0, 0xB5);
    } else if (leftClass == ClassAccumulator && rightClass == ClassImmediate) {
        storeByte(0, 0xB4);
    } else if (leftClass == ClassRegister && rightClass == ClassImmediate) {
        storeByte(0, 0xB8 + left);
    } else if (leftClass == ClassIndirect && rightClass == ClassImmediate) {
        storeByte(0, 0xB6 + left);
    } else {
        return false;
    }
    return true;
}

void Assembler::encodeLongJumpOrCall() {
    auto& t = state_.tokens;
    if (!t[2].empty()) {
        state_.errorNumber = Finding::InvalidOperandCombination;
        return;
    }
    // Ahead of the split between jump and call: CALL @A+DPTR is JMP @A+DPTR.
    if (t[1] == "@A+DPTR") {
        storeByte(0, 0x73);
        return;
    }
    state_.instructionLength = 3;
    storeByte(0, endsWith(t[0], "JMP") ? 0x02 : 0x12);
    std::int32_t target = kLabelContext;
    bool found = false;
    evaluateExpression(t[1], target, found);
    if (found) {
        storeLongTarget(target);
    } else {
        state_.errorNumber = Finding::UnknownInstructionOrTarget;
    }
}

void Assembler::encodeAbsoluteJumpOrCall() {
    auto& t = state_.tokens;
    if (!t[2].empty()) {
        state_.errorNumber = Finding::InvalidOperandCombination;
        return;
    }
    state_.instructionLength = 2;
    std::int32_t target = kLabelContext;
    bool found = false;
    evaluateExpression(t[1], target, found);
    if (!found) {
        if (state_.errorNumber == Finding::None)
            state_.errorNumber = Finding::UnknownInstructionOrTarget;
        return;
    }
    if (!sameBlock(state_.codeAddress + 2, target)) {
        state_.errorNumber = Finding::BlockBoundaryCrossed;
        return;
    }
    storeByte(0, (t[0] == "AJMP" ? 0x01 : 0x11) + 32 * ((target / 256) % 8));
    storeByte(1, target % 256);
}

}  // namespace korvex
