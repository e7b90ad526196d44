#pragma once
// The character rules that every text control shares, on plain text: line
// ends, words, and the search of Find.

#include <cstdint>
#include <string>
#include <string_view>

namespace korvex {

// CR LF, a lone CR and a lone LF each become CR LF.
std::string normaliseLineEnds(std::string_view text);

// Letters (the Windows-1252 ones too), digits and "_": what a whole-word
// search must not find on either side of a hit.
bool isWordCharacter(char c);

// The first hit of `term` in `text` from `start` (negative counts as 0) that
// ends at or before `end` (-1: the end of the text); -1 if none or the term
// is empty. Options as TextControl::Find takes them.
std::int32_t findInText(std::string_view text, std::string_view term, std::int32_t start,
                        std::int32_t end, int options);

}  // namespace korvex
