#pragma once
// Small commands of the source window on its text control: the two
// selection keys, deleting, and the format of a keyboard paste.

#include <cstdint>

#include "workbench/editor_flags.h"
#include "workbench/settings.h"
#include "workbench/text_control.h"

namespace korvex {

// Alt+S: the caret's line with its line end.
void SelectLine(TextControl& box);

// Alt+W: from the selection up to the next blank, ".", "?", "!" or ":".
void SelectToPunctuation(TextControl& box);

// Delete: the selection, or the character at the caret (a line end whole).
// Nothing with an empty text. True when the text is empty afterwards, which
// asks for the document to be formatted afresh.
bool DeleteSelection(TextControl& box);

// After Ctrl+V or Shift+Insert: what was pasted, from `keyDownCaret` to the
// caret, gets the scaled tabs, indent and font of the settings and black.
// The caret ends behind it and becomes the new `keyDownCaret`. An overflow
// of the tab arithmetic is raised before anything changes.
void FormatKeyboardPaste(TextControl& box, EditorFlags& flags, const Settings& settings,
                         std::int32_t& keyDownCaret);

}  // namespace korvex
