#pragma once
// The controller the user works with: the drivers in the program folder to
// choose from, and the register help that the name selects.

#include <string>
#include <vector>

namespace korvex {

// The names of the "*.cpu" files of `programFolder`, without ".cpu", sorted.
std::vector<std::string> AvailableControllers(const std::string& programFolder);

// The register help file of a controller (compared in upper case).
std::string RegisterHelpFile(const std::string& controllerName);

}  // namespace korvex
