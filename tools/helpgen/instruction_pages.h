#pragma once
// The pages of the 8051's instructions: every form of a mnemonic with its
// opcode, length and machine cycles, the flags it changes, and an example.

#include <string>
#include <vector>

namespace korvex::help {

struct InstructionPage {
    int topic = 0;
    std::string file;   // "1310.html"
    std::string title;  // "MOV – Daten übertragen"
    std::string html;   // the whole page
};

std::vector<InstructionPage> instructionPages();

}  // namespace korvex::help
