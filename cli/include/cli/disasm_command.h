#pragma once
// korvex-disasm as a function, for tests and the fuzz target: the whole run
// with its arguments (without the program name). Never throws; returns the
// exit status.

#include <ostream>
#include <string>
#include <vector>

namespace korvex {

int runKorvexDisasm(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace korvex
