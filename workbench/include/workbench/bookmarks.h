#pragma once
// Bookmarks: three pictures in a row at a line start. They live only in the
// window; no file and no compile ever sees them.

#include <cstdint>

#include "workbench/editor_flags.h"
#include "workbench/text_control.h"

namespace korvex {

// The strip at the left of the text where a click toggles a bookmark:
// wider than 0 and narrower than 100 twips.
bool InBookmarkStrip(double xTwips);

// Removes the bookmark at the caret, or sets one there. Never makes the
// document dirty; an empty text has no place for one.
void ToggleBookmark(TextControl& box, EditorFlags& flags);

// Every picture goes; the caret keeps its place in the text.
void RemoveBookmarks(TextControl& box, EditorFlags& flags);

}  // namespace korvex
