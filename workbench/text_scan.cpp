#include "workbench/text_scan.h"

#include "base/cp1252.h"
#include "workbench/text_control.h"

namespace korvex {

std::string normaliseLineEnds(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\r') {
            if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
            out += "\r\n";
        } else if (c == '\n') {
            out += "\r\n";
        } else {
            out += c;
        }
    }
    return out;
}

bool isWordCharacter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte >= '0' && byte <= '9') || byte == '_') return true;
    if ((byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z')) return true;
    // The letters of Windows-1252 beyond ASCII: À to ÿ without × and ÷, and
    // ƒ Š Œ Ž š œ ž Ÿ ª µ º.
    if (byte >= 0xC0) return byte != 0xD7 && byte != 0xF7;
    switch (byte) {
        case 0x83:
        case 0x8A:
        case 0x8C:
        case 0x8E:
        case 0x9A:
        case 0x9C:
        case 0x9E:
        case 0x9F:
        case 0xAA:
        case 0xB5:
        case 0xBA: return true;
        default: return false;
    }
}

namespace {

bool sameCharacter(char a, char b, bool matchCase) {
    return matchCase ? a == b : upperChar(a) == upperChar(b);
}

}  // namespace

std::int32_t findInText(std::string_view text, std::string_view term, std::int32_t start,
                        std::int32_t end, int options) {
    const auto length = static_cast<std::int64_t>(text.size());
    const auto termLength = static_cast<std::int64_t>(term.size());
    const std::int64_t limit = end < 0 || end > length ? length : end;
    const bool matchCase = (options & kFindMatchCase) != 0;
    const bool wholeWord = (options & kFindWholeWord) != 0;
    if (termLength == 0) return -1;
    for (std::int64_t at = start < 0 ? 0 : start; at + termLength <= limit; ++at) {
        bool hit = true;
        for (std::int64_t k = 0; k < termLength && hit; ++k)
            hit = sameCharacter(text[static_cast<std::size_t>(at + k)],
                                term[static_cast<std::size_t>(k)], matchCase);
        if (!hit) continue;
        if (wholeWord) {
            const bool wordBefore =
                at > 0 && isWordCharacter(text[static_cast<std::size_t>(at - 1)]);
            const bool wordAfter = at + termLength < length &&
                                   isWordCharacter(text[static_cast<std::size_t>(at + termLength)]);
            if (wordBefore || wordAfter) continue;
        }
        return static_cast<std::int32_t>(at);
    }
    return -1;
}

}  // namespace korvex
