#include "wizards/core/comment_colouring.h"

namespace korvex::wizards {

std::vector<ColouredRange> commentColouring(const std::string& text, std::uint32_t commentColour) {
    std::vector<ColouredRange> ranges;
    if (text.empty()) return ranges;
    ranges.push_back({0, text.size(), false, 0});
    std::size_t from = 0;
    while (true) {
        const std::size_t semicolon = text.find(';', from);
        if (semicolon == std::string::npos) break;
        const std::size_t lineEnd = text.find("\r\n", semicolon + 1);
        const std::size_t end = lineEnd == std::string::npos ? text.size() : lineEnd + 2;
        ranges.push_back({semicolon, end - semicolon, true, commentColour});
        from = end;
    }
    return ranges;
}

}  // namespace korvex::wizards
