#include "disassembler/instruction_forms.h"

namespace korvex {
namespace {

using C = FormComment;

constexpr void set(std::array<InstructionForm, 256>& forms, int first, int last, int length,
                   const char* pattern, C comment = C::None) {
    for (int op = first; op <= last; ++op) {
        forms[static_cast<std::size_t>(op)] = {static_cast<std::uint8_t>(length), pattern, comment,
                                               false};
    }
}

constexpr void one(std::array<InstructionForm, 256>& forms, int op, int length, const char* pattern,
                   C comment = C::None) {
    set(forms, op, op, length, pattern, comment);
}

constexpr std::array<InstructionForm, 256> buildForms() {
    std::array<InstructionForm, 256> f{};
    // Register and indirect forms, one row of the opcode map each.
    const char* const registerForms[16] = {
        "inc r%r",     "dec r%r",      "add a, r%r",  "addc a, r%r",
        "orl a, r%r",  "anl a, r%r",   "xrl a, r%r",  "mov r%r, #%Xh",
        "mov %D, r%r", "subb a, r%r",  "mov r%r, %D", "cjne r%r, #%Xh, %T",
        "xch a, r%r",  "djnz r%r, %T", "mov a, r%r",  "mov r%r, a"};
    const int registerLengths[16] = {1, 1, 1, 1, 1, 1, 1, 2, 2, 1, 2, 3, 1, 2, 1, 1};
    const C registerComments[16] = {C::None, C::None,     C::None, C::None,
                                    C::None, C::None,     C::None, C::Immediate,
                                    C::None, C::None,     C::None, C::ImmediateHereFD,
                                    C::None, C::HereAtFE, C::None, C::None};
    const char* const indirectForms[16] = {
        "inc @r%i",     "dec @r%i",     "add a, @r%i",  "addc a, @r%i",
        "orl a, @r%i",  "anl a, @r%i",  "xrl a, @r%i",  "mov @r%i, #%Xh",
        "mov %D, @r%i", "subb a, @r%i", "mov @r%i, %D", "cjne @r%i, #%Xh, %T",
        "xch a, @r%i",  "xchd a, @r%i", "mov a, @r%i",  "mov @r%i, a"};
    const int indirectLengths[16] = {1, 1, 1, 1, 1, 1, 1, 2, 2, 1, 2, 3, 1, 1, 1, 1};
    const C indirectComments[16] = {C::None, C::None, C::None, C::None,
                                    C::None, C::None, C::None, C::Immediate,
                                    C::None, C::None, C::None, C::ImmediateHereFD,
                                    C::None, C::None, C::None, C::None};
    for (int row = 0; row < 16; ++row) {
        set(f, row * 16 + 8, row * 16 + 15, registerLengths[row], registerForms[row],
            registerComments[row]);
        set(f, row * 16 + 6, row * 16 + 7, indirectLengths[row], indirectForms[row],
            indirectComments[row]);
    }
    for (int page = 0; page < 8; ++page) {
        one(f, page * 32 + 0x01, 2, "ajmp %Ah");
        one(f, page * 32 + 0x11, 2, "acall %Ah");
    }

    one(f, 0x00, 1, "nop");
    one(f, 0x02, 3, "ljmp %X%Yh");
    one(f, 0x03, 1, "rr a");
    one(f, 0x04, 1, "inc a");
    one(f, 0x05, 2, "inc %D");
    one(f, 0x10, 3, "jbc %B, %T", C::HereAtFD);
    one(f, 0x12, 3, "lcall %X%Yh");
    one(f, 0x13, 1, "rrc a");
    one(f, 0x14, 1, "dec a");
    one(f, 0x15, 2, "dec %D");
    one(f, 0x20, 3, "jb %B, %T", C::HereAtFD);
    one(f, 0x22, 1, "ret");
    one(f, 0x23, 1, "rl a");
    one(f, 0x24, 2, "add a, #%Xh", C::Immediate);
    one(f, 0x25, 2, "add a, %D");
    one(f, 0x30, 3, "jnb %B, %T", C::HereAtFD);
    one(f, 0x32, 1, "reti");
    one(f, 0x33, 1, "rlc a");
    one(f, 0x34, 2, "addc a, #%Xh", C::Immediate);
    one(f, 0x35, 2, "addc a, %D");
    one(f, 0x40, 2, "jc %T", C::HereAtFE);
    one(f, 0x42, 2, "orl %D, a");
    one(f, 0x43, 3, "orl %D, #%Yh", C::ImmediateThird);
    one(f, 0x44, 2, "orl a, #%Xh", C::Immediate);
    one(f, 0x45, 2, "orl a, %D");
    one(f, 0x50, 2, "jnc %T", C::HereAtFE);
    one(f, 0x52, 2, "anl %D, a");
    one(f, 0x53, 3, "anl %D, #%Yh", C::ImmediateThird);
    one(f, 0x54, 2, "anl a, #%Xh", C::Immediate);
    one(f, 0x55, 2, "anl a, %D");
    one(f, 0x60, 2, "jz %T", C::HereAtFE);
    one(f, 0x62, 2, "xrl %D, a");
    one(f, 0x63, 3, "xrl %D, #%Yh", C::ImmediateThird);
    one(f, 0x64, 2, "xrl a, #%Xh", C::Immediate);
    one(f, 0x65, 2, "xrl a, %D");
    one(f, 0x70, 2, "jnz %T", C::HereAtFE);
    one(f, 0x72, 2, "orl c, %B");
    one(f, 0x73, 1, "jmp @a+dptr");
    one(f, 0x74, 2, "mov a, #%Xh", C::Immediate);
    one(f, 0x75, 3, "mov %D, #%Yh", C::ImmediateThird);
    one(f, 0x80, 2, "sjmp %T", C::EndAtFE);
    one(f, 0x82, 2, "anl c, %B");
    one(f, 0x83, 1, "movc a, @a+pc");
    one(f, 0x84, 1, "div ab");
    one(f, 0x85, 3, "mov %E, %D");
    one(f, 0x90, 3, "mov dptr, #%X%Yh");
    one(f, 0x92, 2, "mov %B, c");
    one(f, 0x93, 1, "movc a, @a+dptr");
    one(f, 0x94, 2, "subb a, #%Xh", C::Immediate);
    one(f, 0x95, 2, "subb a, %D");
    one(f, 0xA0, 2, "orl c, /%B");
    one(f, 0xA2, 2, "mov c, %B");
    one(f, 0xA3, 1, "inc dptr");
    one(f, 0xA4, 1, "mul ab");
    one(f, 0xA5, 0, "");
    one(f, 0xB0, 2, "anl c, /%B");
    one(f, 0xB2, 2, "cpl %B");
    one(f, 0xB3, 1, "cpl c");
    one(f, 0xB4, 3, "cjne a, #%Xh, %T", C::Immediate);
    one(f, 0xB5, 3, "cjne a, %D, %T");
    one(f, 0xC0, 2, "push %D");
    one(f, 0xC2, 2, "clr %B");
    one(f, 0xC3, 1, "clr c");
    one(f, 0xC4, 1, "swap a");
    one(f, 0xC5, 2, "xch a, %D");
    one(f, 0xD0, 2, "pop %D");
    one(f, 0xD2, 2, "setb %B");
    one(f, 0xD3, 1, "setb c");
    one(f, 0xD4, 1, "da a");
    one(f, 0xD5, 3, "djnz %D, %T");
    one(f, 0xE0, 1, "movx a, @dptr");
    one(f, 0xE2, 1, "movx a, @r0");
    one(f, 0xE3, 1, "movx a, @r1");
    one(f, 0xE4, 1, "clr a");
    one(f, 0xE5, 2, "mov a, %D");
    one(f, 0xF0, 1, "movx @dptr, a");
    one(f, 0xF2, 1, "movx @r0, a");
    one(f, 0xF3, 1, "movx @r1, a");
    one(f, 0xF4, 1, "cpl a");
    one(f, 0xF5, 2, "mov %D, a");
    f[0x22].atLineStart = true;
    f[0x32].atLineStart = true;
    return f;
}

constexpr std::array<InstructionForm, 256> kForms = buildForms();

// Every opcode but A5h has a form.
constexpr bool allFormsPresent() {
    for (std::size_t op = 0; op < 256; ++op) {
        if ((kForms[op].length == 0) != (op == 0xA5)) return false;
    }
    return true;
}
static_assert(allFormsPresent());

}  // namespace

const std::array<InstructionForm, 256>& instructionForms() {
    return kForms;
}

}  // namespace korvex
