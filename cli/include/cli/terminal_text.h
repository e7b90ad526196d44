#pragma once
// Text of the system (Windows-1252) on its way to and from a terminal.

#include <string>

namespace korvex {

// Converts to the locale's encoding: UTF-8 normally, the bytes as they are
// under an 8-bit Latin locale.
std::string toTerminal(const std::string& cp1252);

}  // namespace korvex
