#pragma once
// F1 in a source window: the word at the caret, for the help lookup.

#include <cstdint>
#include <string>

namespace korvex {

// The word around the caret, delimited by blanks, ".,;?!:=()", tabs and the
// line ends; empty for an empty text or a caret between delimiters.
std::string HelpWordAt(const std::string& text, std::int32_t caret);

}  // namespace korvex
