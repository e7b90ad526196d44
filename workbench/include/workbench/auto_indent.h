#pragma once
// Enter with automatic indentation: the new line gets the tabs that lead the
// line the caret was in, up to the caret. Spaces never indent.

#include "workbench/editor_flags.h"
#include "workbench/text_control.h"

namespace korvex {

// Writes the line end and the tabs and returns true, or returns false when
// the key is the control's own: with a selection, or at offset 0. At a line
// start the new line opens above, with the tabs of the old one, and the
// caret stays before the old text.
bool EnterWithIndent(TextControl& box, EditorFlags& flags);

}  // namespace korvex
