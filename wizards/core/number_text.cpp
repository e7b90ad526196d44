#include "wizards/core/number_text.h"

#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "base/failure.h"
#include "base/text.h"

namespace korvex::wizards {
namespace {

std::string formatted(double value, int digits, NumberFormat format) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.*G", digits, value);
    std::string text = buffer;
    for (char& c : text) {
        if (c == '.') c = format.decimalMark;
    }
    return text;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace

std::string singleText(float value, NumberFormat format) {
    return formatted(static_cast<double>(value), 7, format);
}

std::string doubleText(double value, NumberFormat format) {
    return formatted(value, 15, format);
}

double systemDouble(std::string_view text, NumberFormat format) {
    // Group marks are skipped, the decimal mark becomes the point of C's reader.
    std::string plain;
    bool digit = false;
    std::size_t i = 0;
    const std::string trimmed = cleaned(text);
    if (!trimmed.empty() && (trimmed[0] == '+' || trimmed[0] == '-')) plain += trimmed[i++];
    bool inFraction = false;
    for (; i < trimmed.size(); ++i) {
        const char c = trimmed[i];
        if (isDigit(c)) {
            plain += c;
            digit = true;
        } else if (c == format.groupMark() && !inFraction) {
            continue;
        } else if (c == format.decimalMark && !inFraction) {
            plain += '.';
            inFraction = true;
        } else {
            break;
        }
    }
    if (!digit) raise(FailureNumber::TypeMismatch);
    if (i < trimmed.size() && (trimmed[i] == 'E' || trimmed[i] == 'e')) {
        plain += 'E';
        ++i;
        if (i < trimmed.size() && (trimmed[i] == '+' || trimmed[i] == '-')) plain += trimmed[i++];
        bool exponentDigit = false;
        while (i < trimmed.size() && isDigit(trimmed[i])) {
            plain += trimmed[i++];
            exponentDigit = true;
        }
        if (!exponentDigit) raise(FailureNumber::TypeMismatch);
    }
    if (i != trimmed.size()) raise(FailureNumber::TypeMismatch);
    const double value = std::strtod(plain.c_str(), nullptr);
    if (!std::isfinite(value)) raise(FailureNumber::Overflow);
    return value;
}

float systemSingle(std::string_view text, NumberFormat format) {
    return toSingle(systemDouble(text, format));
}

double valNumber(std::string_view text) {
    std::string plain;
    for (char c : text) {
        if (c != ' ' && c != '\t' && c != '\n') plain += c;
    }
    if (plain.size() >= 2 && plain[0] == '&') {
        const char kind = static_cast<char>(plain[1] & ~0x20);
        const int base = kind == 'H' ? 16 : kind == 'O' ? 8 : 0;
        if (base == 0) return 0;
        std::int64_t value = 0;
        std::size_t i = 2;
        for (; i < plain.size(); ++i) {
            const char c = plain[i];
            int digit = -1;
            if (isDigit(c))
                digit = c - '0';
            else if (base == 16 && (c & ~0x20) >= 'A' && (c & ~0x20) <= 'F')
                digit = (c & ~0x20) - 'A' + 10;
            if (digit < 0 || digit >= base) break;
            value = (value * base + digit) & 0xFFFFFFFF;
        }
        // Without the long suffix "&", up to four hex digits are an Integer.
        const bool longSuffix = i < plain.size() && plain[i] == '&';
        if (!longSuffix && value <= 0xFFFF) return static_cast<std::int16_t>(value);
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
    }
    std::string number;
    std::size_t i = 0;
    if (i < plain.size() && (plain[i] == '+' || plain[i] == '-')) number += plain[i++];
    bool point = false;
    for (; i < plain.size(); ++i) {
        if (isDigit(plain[i])) {
            number += plain[i];
        } else if (plain[i] == '.' && !point) {
            number += '.';
            point = true;
        } else {
            break;
        }
    }
    if (i < plain.size() &&
        (plain[i] == 'E' || plain[i] == 'e' || plain[i] == 'D' || plain[i] == 'd')) {
        std::string exponent = "E";
        std::size_t j = i + 1;
        if (j < plain.size() && (plain[j] == '+' || plain[j] == '-')) exponent += plain[j++];
        bool any = false;
        while (j < plain.size() && isDigit(plain[j])) {
            exponent += plain[j++];
            any = true;
        }
        if (any) number += exponent;
    }
    const double value = std::strtod(number.c_str(), nullptr);
    if (!std::isfinite(value)) raise(FailureNumber::Overflow);
    return value;
}

float toSingle(double value) {
    if (!std::isfinite(value) || std::fabs(value) > static_cast<double>(FLT_MAX)) {
        raise(FailureNumber::Overflow);
    }
    return static_cast<float>(value);
}

std::int32_t roundToInt32(double value) {
    const double rounded = std::nearbyint(value);  // the default mode rounds halves to even
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) raise(FailureNumber::Overflow);
    return static_cast<std::int32_t>(rounded);
}

std::string hexText(std::int64_t value) {
    return hexDigits(value);
}

std::string hex2(std::int64_t value) {
    const std::string text = "0" + hexText(value);
    return text.substr(text.size() - 2);
}

std::int32_t hexFieldValue(std::string_view text) {
    return static_cast<std::int32_t>(valNumber("&H" + std::string(text)));
}

}  // namespace korvex::wizards
