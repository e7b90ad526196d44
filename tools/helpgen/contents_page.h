#pragma once
// The contents of the main help: every page of the korvex folder, the
// written ones and the made ones, under their titles.

#include <string>

namespace korvex::help {

// Reads the titles of the pages in `folder` (ending in "/") and writes the
// contents page's HTML.
std::string contentsPage(const std::string& folder);

}  // namespace korvex::help
