#pragma once
// The line of a text that holds a position: from behind the last CR LF that
// lies wholly before it to the next CR LF (or the end of the text).

#include <cstdint>
#include <string>

namespace korvex {

struct LineBounds {
    std::int32_t start = 0;
    std::int32_t end = 0;  // the line's CR, or the text's length
    std::string text;      // the end - start characters from start
};

// Positions outside the text count as its nearer end.
LineBounds LineBoundsAt(const std::string& text, std::int32_t position);

}  // namespace korvex
