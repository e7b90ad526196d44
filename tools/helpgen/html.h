#pragma once
// Writing the help's HTML pages: one frame for all, text escaped.

#include <string>
#include <string_view>

namespace korvex::help {

std::string escaped(std::string_view text);

// A whole page: title, the body as given, and the link back to the contents.
std::string page(std::string_view title, std::string_view body);

// Writes `text` to `path`, replacing the file whole; false on failure.
bool writePage(const std::string& path, const std::string& text);

}  // namespace korvex::help
