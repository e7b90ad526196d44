#pragma once
// The plain text of an RTF document, as a rich text control shows it and
// saves it as text: paragraphs end in CR LF, tabs stay, escaped characters
// become their Windows-1252 bytes, and font tables, pictures and other
// destinations are left out. Enough for sources that were once saved as RTF.

#include <string>
#include <string_view>

namespace korvex {

// Does a file that begins with these bytes hold RTF? (Its first 20 bytes
// contain "{\rtf1\ansi".)
bool looksLikeRtf(std::string_view firstBytes);

std::string plainTextOfRtf(std::string_view rtf);

}  // namespace korvex
