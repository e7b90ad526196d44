#pragma once
// Numbers as the wizards read and show them. Shown numbers follow the
// system's conversion: seven significant digits for a single, fifteen for a
// double, no trailing zeros, the exponent form where the number needs it, and
// the user's decimal mark, which the caller hands in. Reading knows two ways:
// the system's conversion (decimal mark of the user, group marks skipped) and
// the one that knows only the decimal point and stops where it can't go on.

#include <cstdint>
#include <string>
#include <string_view>

namespace korvex::wizards {

struct NumberFormat {
    char decimalMark = ',';
    char groupMark() const { return decimalMark == ',' ? '.' : ','; }
};

std::string singleText(float value, NumberFormat format);
std::string doubleText(double value, NumberFormat format);

// The system's conversion of a text to a number. Text that is no number is
// the failure "Typen unverträglich"; a single out of range is "Überlauf".
double systemDouble(std::string_view text, NumberFormat format);
float systemSingle(std::string_view text, NumberFormat format);

// The classic Val: blanks and tabs are skipped, only the decimal point
// counts, "&H" and "&O" read hexadecimal and octal, the first character that
// can't be used ends the number. No failure: nothing usable is 0.
double valNumber(std::string_view text);

// A double stored into a single; leaving the range is "Überlauf".
float toSingle(double value);

// Rounding to a 32-bit integer, halves to the even neighbour; "Überlauf" out of range.
std::int32_t roundToInt32(double value);

// hex(x): capital digits without leading zeros (a negative value in 32-bit
// two's complement); hex2(x): the last two characters of "0" + hex(x).
std::string hexText(std::int64_t value);
std::string hex2(std::int64_t value);

// A field read as hexadecimal, as Val("&H" + text) does.
std::int32_t hexFieldValue(std::string_view text);

}  // namespace korvex::wizards
