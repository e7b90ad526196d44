// Directives: statements that begin with "#".

#include "assembler/assembler.h"

namespace korvex {

bool Assembler::handleDirective(std::string&) {
    // No directive is known yet: the text goes on as a statement.
    return true;
}

void Assembler::expandAllMacros(std::string&) {}

}  // namespace korvex
