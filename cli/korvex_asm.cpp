// korvex-asm: assembles a source as the compile command of the workbench does.

#include <iostream>
#include <string>
#include <vector>

#include "cli/asm_command.h"
#include "cli/run_guard.h"

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    return korvex::toolMain("korvex-asm",
                            [&] { return korvex::runKorvexAsm(args, std::cout, std::cerr); });
}
