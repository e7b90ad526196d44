#pragma once
// Filters on one key press of a field, shared by all wizards, and the two
// conversions between binary text and numbers. A key is a 16-bit character
// code; a filter may change it, and a key set to 0 is dropped.

#include <cstdint>
#include <string>

#include "wizards/core/number_text.h"

namespace korvex::wizards {

inline constexpr std::int16_t kBackspace = 8;

// Two-digit hexadecimal fields: digits pass, "a" to "f" become capitals.
void hexKeyFilter(const std::string& text, int selectionLength, std::int16_t& key);
// Eight-digit binary fields: only "0" and "1".
void binaryKeyFilter(const std::string& text, int selectionLength, std::int16_t& key);
// Baud-rate lists: digits and Backspace.
void decimalKeyFilter(std::int16_t& key);
// The clock field: digits, Backspace and the user's decimal mark; the other
// mark is turned into it.
void numberKeyFilter(std::int16_t& key, NumberFormat format);

// Sum of digit times 2^i, i counted from the rightmost digit; a 16-bit result.
std::int16_t binaryTextToValue(const std::string& binary);
// The value of a hexadecimal text as exactly 16 binary digits, most significant first.
std::string valueToBinaryText(const std::string& hex);

}  // namespace korvex::wizards
