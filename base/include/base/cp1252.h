#pragma once
// Windows-1252 is the system's text: one byte per character, as in the files.
// Conversion to Unicode happens only at the edges (terminal, widgets).

#include <string>
#include <string_view>

namespace korvex {

// Windows-1252 bytes to UTF-8. The five undefined bytes map to the C1 controls
// of the same value, so every byte survives a round trip.
std::string toUtf8(std::string_view cp1252);

// UTF-8 to Windows-1252. Characters the code page lacks become '?', and so do
// bytes that are not valid UTF-8.
std::string fromUtf8(std::string_view utf8);

// A German literal of the C++ source (UTF-8) entering the 8-bit world.
inline std::string text8(std::string_view utf8) {
    return fromUtf8(utf8);
}

// Upper-casing that folds the Windows-1252 letters too (ä to Ä, š to Š, ÿ to Ÿ).
char upperChar(char c);
std::string upperCase(std::string_view text);
// The same in place, for the hot paths that own their text already.
void upperCaseInPlace(std::string& text);

}  // namespace korvex
