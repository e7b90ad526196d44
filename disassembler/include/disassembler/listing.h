#pragma once
// The listing form of a sweep, the text of Disas.tmp: the header, then for
// each instruction the last four digits of its address, a tab, its bytes in
// three columns and its statement.

#include <string>

#include "disassembler/sweep.h"

namespace korvex {

std::string listingText(const Sweep& sweep);

// Writes the same text as a file, a piece at a time; a failure raises
// "Fehler beim Zugriff auf Pfad/Datei".
void writeListingFile(const Sweep& sweep, const std::string& path);

}  // namespace korvex
