#include "workbench/file_comparison.h"

#include <cstdio>
#include <vector>

#include "base/failure.h"
#include "base/text.h"

namespace korvex {
namespace {

// Only hex lines are read as numbers, so every digit is one.
unsigned hexValue(std::string_view digits) {
    return static_cast<unsigned>(parseHexPrefix(digits));
}

// As much of [at, at + count) as the line has; nothing past its end.
std::string_view part(std::string_view line, std::size_t at, std::size_t count) {
    return at < line.size() ? line.substr(at, count) : std::string_view();
}

}  // namespace

bool IsHexLine(std::string_view line) {
    if (line.size() < 2 || line[0] != ':') return false;
    for (std::size_t at = 1; at < line.size(); ++at)
        if (hexDigitValue(line[at]) < 0) return false;
    return true;
}

std::string LoadForCompare(const std::string& bytes, bool expandHex, unsigned char fill) {
    if (!expandHex || bytes.empty()) return bytes;
    const std::vector<std::string_view> lines = textLines(bytes);
    long highest = 0;
    for (const std::string_view line : lines) {
        // One line that isn't hex and the whole file is compared as it is.
        if (!IsHexLine(line)) return bytes;
        const unsigned length = hexValue(part(line, 1, 2));
        if (length == 0) continue;
        const unsigned address = hexValue(part(line, 3, 4));
        highest = std::max(highest, static_cast<long>(address + length) - 1);
    }
    std::string image(static_cast<std::size_t>(highest) + 1, static_cast<char>(fill));
    for (const std::string_view line : lines) {
        if (hexValue(part(line, 1, 2)) == 0) continue;
        std::size_t at = hexValue(part(line, 3, 4));
        // The data from the tenth character to the third last: the line's
        // own length decides, not its length byte.
        for (std::size_t digit = 9; digit + 2 < line.size(); digit += 2) {
            if (at >= image.size()) throw RuntimeFailure(FailureNumber::IndexOutOfRange);
            image[at++] = static_cast<char>(hexValue(part(line, digit, 2)));
        }
    }
    return image;
}

std::string CompareBytes(const std::string& first, const std::string& second, long stopAfter) {
    std::string list;
    long count = 0;
    const std::size_t common = std::min(first.size(), second.size());
    for (std::size_t p = 0; p < common; ++p) {
        const auto a = static_cast<unsigned char>(first[p]);
        const auto b = static_cast<unsigned char>(second[p]);
        if (a == b) continue;
        char line[40];
        std::snprintf(line, sizeof line, "%06zXh: %02X %02X\r\n", p, a, b);
        list += line;
        if (++count == stopAfter) {
            list += std::to_string(count) + " Differenzen, Vergleich abgebrochen.";
            break;
        }
    }
    return list;
}

}  // namespace korvex
