#pragma once
// Comparing two files byte by byte. Intel-HEX files may first be expanded
// into memory images, so that two hex files of different record layout but
// the same content compare equal, and a hex file compares with a binary one.

#include <string>
#include <string_view>

namespace korvex {

// ":" and at least one more character, all of them hexadecimal digits.
bool IsHexLine(std::string_view line);

// The bytes to compare: with `expandHex` a file whose every line is a hex
// line becomes an image from address 0 to its highest data byte, the gaps
// `fill`; any other file stays as it is. An image longer than its records
// say raises the index failure.
std::string LoadForCompare(const std::string& bytes, bool expandHex, unsigned char fill);

// The differences over the common length, one line each: offset, byte of the
// first file, byte of the second ("00000Ah: 12 34"). When `stopAfter`
// differences are listed, the list ends with the note of the stop; 0 never
// stops.
std::string CompareBytes(const std::string& first, const std::string& second, long stopAfter);

}  // namespace korvex
