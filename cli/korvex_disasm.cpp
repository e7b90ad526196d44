// korvex-disasm: disassembles a hex or binary file as the workbench's
// disassembler command does, and prints the text of the new window.

#include <iostream>
#include <string>
#include <vector>

#include "cli/disasm_command.h"
#include "cli/run_guard.h"

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    return korvex::toolMain("korvex-disasm",
                            [&] { return korvex::runKorvexDisasm(args, std::cout, std::cerr); });
}
