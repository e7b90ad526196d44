#pragma once
// A text as a plain RTF document: one font, no colours, every character
// that RTF or the code page could misread escaped, so that the document
// reads back as the text.

#include <string>
#include <string_view>

namespace korvex {

std::string rtfOfPlainText(std::string_view text);

}  // namespace korvex
