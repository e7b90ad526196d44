#pragma once
// The label finder's list: every line of a source whose code part ends in a
// colon, comment and all, and the place of such a line in the text.

#include <cstdint>
#include <string>
#include <vector>

namespace korvex {

inline constexpr std::string_view kNoLabels = "keine Label vorhanden";

// The label lines in the text's order, or the one entry kNoLabels. Only
// lines that end in CR LF are looked at.
std::vector<std::string> CollectLabels(const std::string& text);

// A list entry as the grid shows it: tabs as three blanks, no blanks in front.
std::string LabelRowText(const std::string& entry);

// Where the caret goes for an entry: the first place of the line with its
// line end, -1 for kNoLabels or a line no longer there.
std::int32_t LabelPosition(const std::string& text, const std::string& entry);

}  // namespace korvex
