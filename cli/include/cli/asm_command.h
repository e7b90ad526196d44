#pragma once
// korvex-asm as a function: the whole run of the command-line tool with its
// arguments (without the program name), so that tests and the fuzz target
// drive it in-process. Never throws; returns the exit status.

#include <ostream>
#include <string>
#include <vector>

namespace korvex {

int runKorvexAsm(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace korvex
