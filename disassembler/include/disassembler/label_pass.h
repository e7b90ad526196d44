#pragma once
// The label pass. A jump whose target begins a line of the listing gets a
// label: the target line is preceded by "L0123h:" on a line of its own, and
// the jump names "L0123h". Targets inside an instruction or outside the file
// stay numbers.

#include <string>

#include "disassembler/sweep.h"

namespace korvex {

// The text with labels, each line ending in CR LF: the header, then each
// instruction's label, if it has one, and its statement. The text takes
// the place of the sweep's statements.
std::string labelText(Sweep&& sweep);

}  // namespace korvex
