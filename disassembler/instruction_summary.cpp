#include "disassembler/instruction_summary.h"

#include <initializer_list>
#include <set>
#include <utility>

#include "base/cp1252.h"
#include "base/text.h"
#include "disassembler/instruction_forms.h"

namespace korvex {

std::string GeneralForm(std::string_view form) {
    std::string pattern(form);
    const std::pair<std::string_view, std::string_view> kinds[] = {
        {"@r%i", "@Ri"},   {"r%r", "Rn"},     {"#%X%Yh", "#data16"}, {"%X%Yh", "addr16"},
        {"#%Xh", "#data"}, {"#%Yh", "#data"}, {"/%B", "/bit"},       {"%B", "bit"},
        {"%T", "rel"},     {"%Ah", "addr11"}, {"%E", "direct"},      {"%D", "direct"},
        {"@r0", "@Ri"},    {"@r1", "@Ri"},
    };
    for (const auto& [field, kind] : kinds) pattern = replaceAll(pattern, field, kind);
    // The mnemonic in capitals, the registers as the data sheets write them.
    const std::size_t blank = pattern.find(' ');
    const std::string mnemonic = upperCase(pattern.substr(0, blank));
    std::string operands = blank == std::string::npos ? "" : pattern.substr(blank);
    for (const auto& [small, big] :
         std::initializer_list<std::pair<std::string_view, std::string_view>>{{" a,", " A,"},
                                                                              {", a", ", A"},
                                                                              {" c,", " C,"},
                                                                              {", c", ", C"},
                                                                              {"@a+", "@A+"},
                                                                              {"dptr", "DPTR"},
                                                                              {"+pc", "+PC"},
                                                                              {" ab", " AB"}})
        operands = replaceAll(operands, small, big);
    if (operands == " a") operands = " A";
    if (operands == " c") operands = " C";
    return mnemonic + operands;
}

int MachineCycles(int opcode) {
    const InstructionForm& form = instructionForms()[static_cast<std::size_t>(opcode & 0xFF)];
    if (form.length == 0) return 0;
    const std::string pattern = form.pattern;
    const std::string mnemonic = pattern.substr(0, pattern.find(' '));
    if (mnemonic == "mul" || mnemonic == "div") return 4;
    static const std::set<std::string> kTwoCycles = {
        "ajmp", "ljmp", "sjmp", "jmp", "acall", "lcall", "ret",  "reti", "jc",   "jnc", "jb",
        "jnb",  "jbc",  "jz",   "jnz", "cjne",  "djnz",  "movc", "movx", "push", "pop"};
    if (kTwoCycles.count(mnemonic) != 0) return 2;
    // Two-cycle moves and logic: direct destinations from memory, immediate
    // into direct, the 16-bit loads and the carry's bit logic.
    switch (opcode) {
        case 0x43:
        case 0x53:
        case 0x63:  // orl/anl/xrl direct,#data
        case 0x72:
        case 0x82:
        case 0xA0:
        case 0xB0:  // orl/anl c,(/)bit
        case 0x75:
        case 0x85:
        case 0x86:
        case 0x87:  // mov direct,#/direct/@Ri
        case 0x90:
        case 0x92:
        case 0xA3:  // mov dptr; mov bit,c; inc dptr
        case 0xA6:
        case 0xA7:  // mov @Ri,direct
            return 2;
        default: break;
    }
    if (opcode >= 0x88 && opcode <= 0x8F) return 2;  // mov direct,Rn
    if (opcode >= 0xA8 && opcode <= 0xAF) return 2;  // mov Rn,direct
    return 1;
}

}  // namespace korvex
