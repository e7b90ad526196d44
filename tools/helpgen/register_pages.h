#pragma once
// The register help of each controller family, made from our own driver
// files: the special function registers, their bits, the interrupt vectors
// and the state after reset.

#include <string>
#include <vector>

namespace korvex::help {

struct RegisterHelp {
    std::string folder;  // the help file's name without ".hlp": "552sfr"
    std::vector<std::pair<std::string, std::string>> pages;  // file name, HTML
};

// One family per register help file; `driverFolder` holds the *.cpu files.
std::vector<RegisterHelp> registerHelps(const std::string& driverFolder);

}  // namespace korvex::help
