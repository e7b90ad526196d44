#pragma once
// A statement keeps the length it got in the first pass, and the second pass
// only encodes the retried rows again at their old address. When a forward
// reference changes the form of an instruction (MOV 30h,#K with K defined
// later: two bytes without K, three with it), the addresses behind it are
// wrong. The run cannot repair that, but it must not pass in silence.

#include <string>
#include <vector>

#include "assembler/run_state.h"

namespace korvex {

// Bytes that a code text holds (instruction, table or none), read from its
// fixed layout: the four address digits, then two digits per byte.
int codeTextLength(const std::string& codeText);

// One German line (Windows-1252, no line end) per statement whose length
// differs between the passes, naming the file and line as the user wrote it:
// the main file by the file-name part of `sourceName` (none when it is
// empty), an include by the name its #INCLUDE gave.
std::vector<std::string> lengthChangeWarnings(const RunState& state);

}  // namespace korvex
