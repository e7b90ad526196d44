#pragma once
// The text form of each of the 256 opcodes. A form is a pattern in which
// these fields stand for the operands:
//   %r register number (low 3 bits), %i indirect register (low bit),
//   %X second byte as two digits, %Y third byte as two digits,
//   %D the second byte as a direct operand, %E the third byte as one,
//   %B the second byte as a bit, %T the last byte as a relative target,
//   %A the target of AJMP and ACALL.

#include <array>
#include <cstdint>

namespace korvex {

enum class FormComment : std::uint8_t {
    None,
    Immediate,        // the immediate comment of the second byte
    ImmediateThird,   // the immediate comment of the third byte
    EndAtFE,          // "; End" for an offset FEh
    HereAtFE,         // "; Hier" for an offset FEh
    HereAtFD,         // "; Hier" for an offset FDh
    ImmediateHereFD,  // immediate comment, and ", Hier" for an offset FDh
};

struct InstructionForm {
    std::uint8_t length = 1;  // 0: no form (A5h)
    const char* pattern = "";
    FormComment comment = FormComment::None;
    bool atLineStart = false;  // ret, reti: no tab ahead of the text
};

const std::array<InstructionForm, 256>& instructionForms();

}  // namespace korvex
