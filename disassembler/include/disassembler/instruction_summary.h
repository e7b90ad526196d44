#pragma once
// The instruction set as a data sheet shows it: each opcode's form with the
// operands by their kind ("MOV A, Rn"), and its machine cycles on the
// standard core (12 clocks each).

#include <string>
#include <string_view>

namespace korvex {

// A form pattern of instructionForms() in the data sheets' way of writing.
std::string GeneralForm(std::string_view pattern);

// 1, 2 or 4; 0 for the one opcode without an instruction (A5h).
int MachineCycles(int opcode);

}  // namespace korvex
