#include "base/cp1252.h"

#include <array>

namespace korvex {
namespace {

// Code points of the bytes 80h to 9Fh; the undefined ones keep their own value.
// Eight to a line, as code charts print them.
// clang-format off
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
// clang-format on

char32_t codePoint(unsigned char byte) {
    if (byte >= 0x80 && byte < 0xA0) return kHighControls[byte - 0x80];
    return byte;
}

void appendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

char byteFor(char32_t cp) {
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<char>(cp);
    for (std::size_t i = 0; i < kHighControls.size(); ++i) {
        if (kHighControls[i] == cp) return static_cast<char>(0x80 + i);
    }
    return '?';
}

}  // namespace

std::string toUtf8(std::string_view cp1252) {
    std::string out;
    out.reserve(cp1252.size() + cp1252.size() / 8);
    for (char c : cp1252) appendUtf8(out, codePoint(static_cast<unsigned char>(c)));
    return out;
}

std::string fromUtf8(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    std::size_t i = 0;
    while (i < utf8.size()) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        int extra = 0;
        char32_t cp = 0;
        if (lead < 0x80) {
            cp = lead;
        } else if ((lead & 0xE0) == 0xC0) {
            extra = 1;
            cp = lead & 0x1F;
        } else if ((lead & 0xF0) == 0xE0) {
            extra = 2;
            cp = lead & 0x0F;
        } else if ((lead & 0xF8) == 0xF0) {
            extra = 3;
            cp = lead & 0x07;
        } else {
            out += '?';
            ++i;
            continue;
        }
        bool valid = i + static_cast<std::size_t>(extra) < utf8.size();
        for (int k = 1; valid && k <= extra; ++k) {
            const auto next = static_cast<unsigned char>(utf8[i + k]);
            if ((next & 0xC0) != 0x80) {
                valid = false;
            } else {
                cp = (cp << 6) | (next & 0x3F);
            }
        }
        if (!valid) {
            out += '?';
            ++i;
            continue;
        }
        out += byteFor(cp);
        i += static_cast<std::size_t>(extra) + 1;
    }
    return out;
}

namespace {

constexpr char upperOf(unsigned char byte) {
    if (byte >= 'a' && byte <= 'z') return static_cast<char>(byte - 32);
    if (byte >= 0xE0 && byte <= 0xFE && byte != 0xF7) return static_cast<char>(byte - 32);
    switch (byte) {  // š œ ž ÿ to Š Œ Ž Ÿ
        case 0x9A: return static_cast<char>(0x8A);
        case 0x9C: return static_cast<char>(0x8C);
        case 0x9E: return static_cast<char>(0x8E);
        case 0xFF: return static_cast<char>(0x9F);
        default: return static_cast<char>(byte);
    }
}

// Built by the compiler: the assembler upper-cases every token of every line.
constexpr std::array<char, 256> kUpper = [] {
    std::array<char, 256> table{};
    for (int i = 0; i < 256; ++i)
        table[static_cast<std::size_t>(i)] = upperOf(static_cast<unsigned char>(i));
    return table;
}();

}  // namespace

char upperChar(char c) {
    return kUpper[static_cast<unsigned char>(c)];
}

void upperCaseInPlace(std::string& text) {
    for (char& c : text) c = kUpper[static_cast<unsigned char>(c)];
}

std::string upperCase(std::string_view text) {
    std::string out(text);
    upperCaseInPlace(out);
    return out;
}

}  // namespace korvex
