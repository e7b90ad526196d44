#pragma once
// Writing program text: every line ends in CR LF, texts are Windows-1252.

#include <string>
#include <string_view>

#include "base/cp1252.h"

namespace korvex::wizards {

inline constexpr std::string_view kLineEnd = "\r\n";
inline constexpr std::string_view kTab = "\t";

// Appends a line, converting a UTF-8 literal of the source.
inline void line(std::string& code, std::string_view utf8 = {}) {
    code += text8(utf8);
    code += kLineEnd;
}

// Appends a line whose text is already Windows-1252.
inline void line8(std::string& code, const std::string& text) {
    code += text;
    code += kLineEnd;
}

// Each line of a (Windows-1252) text as a comment line "; ..."; a line end at
// the very end of the text makes no empty comment.
inline void commentLines(std::string& code, const std::string& text) {
    std::size_t from = 0;
    while (from <= text.size()) {
        const std::size_t end = text.find(kLineEnd, from);
        if (end == std::string::npos) {
            if (from < text.size() || from == 0) line8(code, "; " + text.substr(from));
            break;
        }
        line8(code, "; " + text.substr(from, end - from));
        from = end + kLineEnd.size();
        if (from == text.size()) break;
    }
}

}  // namespace korvex::wizards
