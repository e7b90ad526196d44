#include "workbench/help_word.h"

#include <algorithm>
#include <string_view>

namespace korvex {

std::string HelpWordAt(const std::string& text, std::int32_t caret) {
    if (text.empty()) return {};
    // The two sets differ in the line end: backward a line starts behind its
    // LF, forward it ends at its CR.
    constexpr std::string_view kBackwardStops = " .,;?!:=()\n\t";
    constexpr std::string_view kForwardStops = " .,;?!:=()\r\t";
    const auto length = static_cast<std::int64_t>(text.size());

    // 1-based positions, as the scan counts them.
    std::int64_t before = std::clamp<std::int64_t>(caret, 0, length);
    while (before != 0 && kBackwardStops.find(text[static_cast<std::size_t>(before - 1)]) ==
                              std::string_view::npos)
        --before;
    std::int64_t after = before;
    while (true) {
        ++after;
        if (after >= length) {
            after = length + 1;
            break;
        }
        if (kForwardStops.find(text[static_cast<std::size_t>(after - 1)]) != std::string_view::npos)
            break;
    }
    if (after - before - 1 <= 0) return {};
    return text.substr(static_cast<std::size_t>(before),
                       static_cast<std::size_t>(after - before - 1));
}

}  // namespace korvex
