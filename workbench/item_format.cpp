#include "workbench/item_format.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include "base/cp1252.h"
#include "base/failure.h"
#include "base/text.h"

namespace korvex {
namespace {

constexpr int kEnd = std::char_traits<char>::eof();

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isBlankOrTab(int c) {
    return c == ' ' || c == '\t';
}
bool isSeparator(int c) {
    return c == ',' || c == '\r' || c == '\n';
}

std::size_t skipDigits(std::string_view text, std::size_t i) {
    while (i < text.size() && isDigit(text[i])) ++i;
    return i;
}

// A power of ten beyond which no 32-bit field can hold a value, and below
// which a value rounds to 0; between them the digits are converted exactly.
constexpr long long kMagnitudeLimit = 12;

// The whole text as a decimal number: [+-] digits [. digits] [E [+-] digits].
// Too large to be held, it is an infinity, which no field's range admits.
std::optional<double> numberValue(std::string_view text) {
    std::size_t i = 0;
    const bool negative = i < text.size() && text[i] == '-';
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    const std::size_t mantissaStart = i;
    const std::size_t integerEnd = skipDigits(text, i);
    std::size_t fractionStart = integerEnd;
    std::size_t mantissaEnd = integerEnd;
    if (mantissaEnd < text.size() && text[mantissaEnd] == '.') {
        fractionStart = mantissaEnd + 1;
        mantissaEnd = skipDigits(text, fractionStart);
    }
    const std::size_t integerDigits = integerEnd - mantissaStart;
    const std::size_t fractionDigits = mantissaEnd - fractionStart;
    if (integerDigits + fractionDigits == 0) return std::nullopt;

    long long exponent = 0;
    i = mantissaEnd;
    if (i < text.size() && (text[i] == 'E' || text[i] == 'e')) {
        ++i;
        const bool negativeExponent = i < text.size() && text[i] == '-';
        if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
        const std::size_t digitsStart = i;
        for (; i < text.size() && isDigit(text[i]); ++i) {
            if (exponent < 1'000'000) exponent = exponent * 10 + (text[i] - '0');
        }
        if (i == digitsStart) return std::nullopt;
        if (negativeExponent) exponent = -exponent;
    }
    if (i != text.size()) return std::nullopt;

    // The place of the first significant digit decides the magnitude.
    const std::string_view integer = text.substr(mantissaStart, integerDigits);
    const std::string_view fraction = text.substr(fractionStart, fractionDigits);
    long long magnitude = 0;
    if (const auto first = integer.find_first_not_of('0'); first != std::string_view::npos) {
        magnitude = static_cast<long long>(integer.size() - first) - 1 + exponent;
    } else if (const auto firstFraction = fraction.find_first_not_of('0');
               firstFraction != std::string_view::npos) {
        magnitude = -static_cast<long long>(firstFraction) - 1 + exponent;
    } else {
        return 0.0;
    }
    if (magnitude < -kMagnitudeLimit) return 0.0;
    if (magnitude > kMagnitudeLimit) {
        return negative ? -std::numeric_limits<double>::infinity()
                        : std::numeric_limits<double>::infinity();
    }
    double value = 0;
    const char* first = text.data() + mantissaStart;
    const char* last = text.data() + text.size();
    const auto [end, error] = std::from_chars(first, last, value);
    if (error != std::errc() || end != last) return std::nullopt;
    return negative ? -value : value;
}

bool isKeyword(const std::string& text, std::string_view keyword) {
    return upperCase(text) == keyword;
}

// Fractions round to the nearest whole number, halves to the even one.
double wholeNumber(double value, double lowest, double highest) {
    const double whole = std::nearbyint(value);
    if (whole < lowest || whole > highest) raise(FailureNumber::Overflow);
    return whole;
}

}  // namespace

void ItemReader::append(std::string& text, char c) const {
    if (text.size() < kMaxItemLength) text += c;
}

void ItemReader::skipToSeparator() {
    int c = in_.sgetc();
    while (c != kEnd && !isSeparator(c)) c = in_.snextc();
}

void ItemReader::consumeSeparator() {
    const int c = in_.sgetc();
    if (c == ',' || c == '\n') {
        in_.sbumpc();
    } else if (c == '\r') {
        if (in_.snextc() == '\n') in_.sbumpc();
    }
}

std::string ItemReader::next() {
    int c = in_.sgetc();
    while (isBlankOrTab(c)) c = in_.snextc();
    if (c == kEnd) raise(FailureNumber::ReadPastEnd);
    std::string item;
    if (c == '"') {
        for (c = in_.snextc(); c != kEnd && c != '"'; c = in_.snextc()) {
            append(item, static_cast<char>(c));
        }
        if (c == '"') in_.sbumpc();
        skipToSeparator();
    } else {
        for (; c != kEnd && !isSeparator(c); c = in_.snextc()) {
            append(item, static_cast<char>(c));
        }
        while (!item.empty() && isBlankOrTab(item.back())) item.pop_back();
    }
    consumeSeparator();
    return item;
}

std::string ItemReader::readString() {
    return next();
}

double ItemReader::readValue() {
    // A quoted number counts as well; its blanks go like those of a bare one.
    const std::string text = cleaned(next());
    if (text.empty() || isKeyword(text, "#FALSE#")) return 0;
    if (isKeyword(text, "#TRUE#")) return -1;
    const std::optional<double> value = numberValue(text);
    if (!value) raise(FailureNumber::TypeMismatch);
    return *value;
}

std::int16_t ItemReader::readInt16() {
    return static_cast<std::int16_t>(wholeNumber(readValue(),
                                                 std::numeric_limits<std::int16_t>::min(),
                                                 std::numeric_limits<std::int16_t>::max()));
}

std::int32_t ItemReader::readInt32() {
    return static_cast<std::int32_t>(wholeNumber(readValue(),
                                                 std::numeric_limits<std::int32_t>::min(),
                                                 std::numeric_limits<std::int32_t>::max()));
}

// Any number but 0 is true, as the host converts numbers to booleans.
bool ItemReader::readBoolean() {
    return readValue() != 0;
}

void ItemWriter::separate() {
    if (lineStarted_) text_ += ',';
    lineStarted_ = true;
}

void ItemWriter::writeString(std::string_view text) {
    separate();
    text_ += '"';
    text_ += text;
    text_ += '"';
}

void ItemWriter::writeNumber(std::int64_t value) {
    separate();
    text_ += std::to_string(value);
}

void ItemWriter::writeBoolean(bool value) {
    separate();
    text_ += value ? "#TRUE#" : "#FALSE#";
}

void ItemWriter::endLine() {
    text_ += "\r\n";
    lineStarted_ = false;
}

}  // namespace korvex
