#pragma once
// Comment, uncomment, indent and unindent over the lines of the selection:
// the symbol (";" or a tab) goes in front of each line, or comes off where
// it stands in the very first column. The lines are worked from the last one
// upward.

#include <cstdint>

#include "workbench/editor_flags.h"
#include "workbench/text_control.h"

namespace korvex {

inline constexpr char kCommentSymbol = ';';
inline constexpr char kIndentSymbol = '\t';

// True when a symbol was added or removed: the document is then dirty.
bool BlockEdit(TextControl& box, EditorFlags& flags, bool add, char symbol,
               std::int32_t commentColour);

}  // namespace korvex
