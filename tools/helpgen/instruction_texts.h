#pragma once
// What the help says of each mnemonic, in its own words.

#include <string_view>

namespace korvex::help {

struct InstructionText {
    std::string_view mnemonic;  // lower case, as the forms write it
    std::string_view title;
    std::string_view text;
    std::string_view flags;    // which flags change; empty: none but P with A
    std::string_view example;  // a program that assembles clean
};

extern const InstructionText kInstructionTexts[];
extern const std::size_t kInstructionTextCount;

}  // namespace korvex::help
