#include "base/text.h"

#include <charconv>

namespace korvex {
namespace {
bool isBlankOrTab(char c) {
    return c == ' ' || c == '\t';
}
}  // namespace

void cleanText(std::string& text) {
    std::size_t last = text.size();
    while (last > 0 && isBlankOrTab(text[last - 1])) --last;
    text.erase(last);
    std::size_t first = 0;
    while (first < text.size() && isBlankOrTab(text[first])) ++first;
    text.erase(0, first);
}

std::string cleaned(std::string_view text) {
    std::string copy(text);
    cleanText(copy);
    return copy;
}

std::string trimBlanks(std::string_view text) {
    std::size_t first = 0;
    while (first < text.size() && text[first] == ' ') ++first;
    std::size_t last = text.size();
    while (last > first && text[last - 1] == ' ') --last;
    return std::string(text.substr(first, last - first));
}

std::string trimLeftBlanks(std::string_view text) {
    std::size_t first = 0;
    while (first < text.size() && text[first] == ' ') ++first;
    return std::string(text.substr(first));
}

std::string removeAll(std::string_view text, char c) {
    std::string out;
    out.reserve(text.size());
    for (char ch : text) {
        if (ch != c) out += ch;
    }
    return out;
}

std::string replaceAll(std::string_view text, std::string_view what, std::string_view with) {
    if (what.empty()) return std::string(text);
    std::string out;
    std::size_t from = 0;
    while (true) {
        const std::size_t hit = text.find(what, from);
        if (hit == std::string_view::npos) break;
        out.append(text.substr(from, hit - from));
        out.append(with);
        from = hit + what.size();
    }
    out.append(text.substr(from));
    return out;
}

namespace {
constexpr char kHexDigits[] = "0123456789ABCDEF";
}  // namespace

void appendHex2(std::string& out, std::int64_t value) {
    out += kHexDigits[(value >> 4) & 0xF];
    out += kHexDigits[value & 0xF];
}

std::string hexDigits(std::int64_t value, int width) {
    static constexpr const char* kDigits = kHexDigits;
    if (width == 2) {
        std::string out;
        appendHex2(out, value);
        return out;
    }
    if (width == 4) {
        std::string out;
        appendHex2(out, value >> 8);
        appendHex2(out, value);
        return out;
    }
    auto bits = static_cast<std::uint32_t>(value);
    std::string out;
    do {
        out.insert(out.begin(), kDigits[bits & 0xF]);
        bits >>= 4;
    } while (bits != 0);
    if (width > 0) {
        const auto w = static_cast<std::size_t>(width);
        if (out.size() < w) out.insert(0, w - out.size(), '0');
        if (out.size() > w) out.erase(0, out.size() - w);
    }
    return out;
}

std::string decimalText(std::int64_t value, bool signPlace) {
    std::string out = std::to_string(value);
    if (signPlace && value >= 0) out.insert(out.begin(), ' ');
    return out;
}

std::int64_t parseDecimal(std::string_view text, std::int64_t fallback) {
    std::int64_t value = 0;
    const char* begin = text.data();
    const char* end = text.data() + text.size();
    if (begin != end && *begin == '+') ++begin;
    const auto result = std::from_chars(begin, end, value);
    if (result.ec != std::errc() || result.ptr != end || begin == end) return fallback;
    return value;
}

std::int64_t parseHexPrefix(std::string_view text) {
    std::int64_t value = 0;
    for (char c : text) {
        const int digit = hexDigitValue(c);
        if (digit < 0) break;
        value = (value << 4 | digit) & 0xFFFFFFFFFFFFLL;
    }
    return value;
}

std::vector<std::string_view> textLines(std::string_view text) {
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find_first_of("\r\n", start);
        if (end == std::string_view::npos) end = text.size();
        lines.push_back(text.substr(start, end - start));
        if (end + 1 < text.size() && text[end] == '\r' && text[end + 1] == '\n') ++end;
        start = end + 1;
    }
    return lines;
}

bool startsWith(std::string_view text, std::string_view prefix) {
    return text.substr(0, prefix.size()) == prefix;
}

bool endsWith(std::string_view text, std::string_view suffix) {
    return text.size() >= suffix.size() && text.substr(text.size() - suffix.size()) == suffix;
}

}  // namespace korvex
