#pragma once
// The check of a built help: every topic the workbench can ask for has its
// page, every controller its register pages, and every example on any page
// assembles without a finding. The build runs it after making the pages.

#include <string>
#include <vector>

namespace korvex::help {

// What is wrong, one German line each; empty when all is well. Both folders
// end in "/"; the help lies in `programFolder` + "help/".
std::vector<std::string> checkHelp(const std::string& programFolder,
                                   const std::string& driverFolder);

// The examples of a page as a user copies them: unescaped, Windows-1252.
std::vector<std::string> examplesOf(const std::string& html);

}  // namespace korvex::help
