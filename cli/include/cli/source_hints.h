#pragma once
// What a command-line user is told when a run fails on a source that is
// likely not what the language expects: the classic failure box says
// only "Typen unverträglich".

#include <string>

namespace korvex {

// One German line (Windows-1252), or empty when nothing stands out: text in
// UTF-16 or with a UTF-8 byte-order mark, or a source that names no driver
// with #cpu.
std::string sourceTextHint(const std::string& text);

}  // namespace korvex
