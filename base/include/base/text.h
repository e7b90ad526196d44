#pragma once
// Small text helpers on 8-bit strings, shaped after the way the assembler
// handles its tables: numbers are text and are parsed where they are used.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace korvex {

inline constexpr std::string_view kCrLf = "\r\n";
inline constexpr std::string_view kFourTabs = "\t\t\t\t";

// Removes blanks and tabs at both ends.
void cleanText(std::string& text);
std::string cleaned(std::string_view text);

// Blanks only, as the classic Trim does.
std::string trimBlanks(std::string_view text);
std::string trimLeftBlanks(std::string_view text);

std::string removeAll(std::string_view text, char c);
std::string replaceAll(std::string_view text, std::string_view what, std::string_view with);

// Upper-case hexadecimal digits of the low 32 bits, zero-filled to `width`
// and cut to the last `width` digits when `width` is not 0.
std::string hexDigits(std::int64_t value, int width = 0);

// Appends the two hexadecimal digits of the low byte.
void appendHex2(std::string& out, std::int64_t value);

// Value of one hexadecimal digit, either case, or -1.
inline int hexDigitValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

// Decimal text; `signPlace` puts a blank before a value that is not negative.
std::string decimalText(std::int64_t value, bool signPlace = false);

// Parses decimal text as an integer; unlike std::stol it never throws.
// Text that is not a whole number gives `fallback`.
std::int64_t parseDecimal(std::string_view text, std::int64_t fallback = 0);

// Reads unsigned hexadecimal digits; stops at the first character that is not one.
std::int64_t parseHexPrefix(std::string_view text);

// The lines of a text file as a line reader gives them: CR LF, a lone CR and
// a lone LF each end a line, and a final line end makes no empty last line.
std::vector<std::string_view> textLines(std::string_view text);

bool startsWith(std::string_view text, std::string_view prefix);
bool endsWith(std::string_view text, std::string_view suffix);

}  // namespace korvex
