#pragma once
// LastDirs: the six folders of the settings, one per file kind in the order
// of the extensions (source, listing, binary, hex, disassembly, symbol).

#include <string>

#include "workbench/settings.h"

namespace korvex {

// After a file is chosen in a dialog: its folder (through the last "/") goes
// to the kind whose extension matches the file's, compared without regard to
// case. A file of another extension changes nothing.
void noteChosenFolder(Settings& settings, const std::string& path);

}  // namespace korvex
