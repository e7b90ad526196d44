#include "workbench/line_bounds.h"

#include <algorithm>

namespace korvex {

LineBounds LineBoundsAt(const std::string& text, std::int32_t position) {
    const auto at = static_cast<std::size_t>(
        std::clamp<std::int64_t>(position, 0, static_cast<std::int64_t>(text.size())));
    std::size_t start = 0;
    if (at >= 2) {
        const std::size_t lineEnd = text.rfind("\r\n", at - 2);
        if (lineEnd != std::string::npos) start = lineEnd + 2;
    }
    std::size_t end = text.find("\r\n", start);
    if (end == std::string::npos) end = text.size();
    return LineBounds{static_cast<std::int32_t>(start), static_cast<std::int32_t>(end),
                      text.substr(start, end - start)};
}

}  // namespace korvex
