#pragma once
// The preview's colours: the whole text in the default colour, and each
// comment from ";" up to and with its line end in the comment colour.

#include <cstdint>
#include <string>
#include <vector>

namespace korvex::wizards {

struct ColouredRange {
    std::size_t start = 0;
    std::size_t length = 0;
    bool comment = false;      // false: the control's default colour
    std::uint32_t colour = 0;  // the comment colour as the settings store it
};

// Empty for an empty text; else first the whole text in the default colour,
// then the comment ranges in the order found.
std::vector<ColouredRange> commentColouring(const std::string& text, std::uint32_t commentColour);

}  // namespace korvex::wizards
