#pragma once
// The two directions between plain text and RTF that LoadFile and SaveFile
// need: the text of an RTF document (its formatting, tables of fonts and
// colours, pictures and other destinations dropped), and a plain RTF
// document of a text.

#include <string>
#include <string_view>

namespace korvex {

// Paragraphs and line breaks become CR LF, \tab a tab, \'hh and \uN their
// Windows-1252 characters. Never fails: broken RTF gives what could be read.
std::string plainTextOfRtf(std::string_view rtf);

// A document in one font that reads back as `text`.
std::string rtfOfPlainText(std::string_view text);

}  // namespace korvex
