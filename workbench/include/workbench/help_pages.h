#pragma once
// Where the help's pages lie: one folder per help file under help/ in the
// program folder, a page per topic, index.html for the contents.

#include <string>

#include "workbench/help_topics.h"

namespace korvex {

// The page for a request (not Kind::Window), as a path below `programFolder`.
std::string HelpPagePath(const std::string& programFolder, const HelpRequest& request);

}  // namespace korvex
