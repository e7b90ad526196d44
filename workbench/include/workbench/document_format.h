#pragma once
// Font, tab stops and indents of a source window. Two rules for the tab
// stops stand side by side on purpose: a new window gets i x 200 + 320 twips,
// while formatting the whole document, and a keyboard paste, scale them by
// the font size in 16-bit arithmetic, so that a size of 30 or more fails with
// "Überlauf". Disassembly windows have six fixed stops of their own.

#include <array>
#include <cstdint>

#include "workbench/editor_flags.h"
#include "workbench/settings.h"
#include "workbench/text_control.h"

namespace korvex {

// ((i x 200 + 320) x fontSize) / 10 for i from 0 to 4; the product is a
// 16-bit signed value, and leaving its range raises the overflow failure.
std::array<std::int32_t, 5> ScaledSourceTabs(std::int16_t fontSize);

// The start format of a new window (and of a text emptied by typing), on
// the whole text: tabs, indent, hanging indent and, with NoRightWrap, the
// right margin.
void ApplyStartFormat(TextControl& box, EditorFlags& flags, const Settings& settings);

// The whole document: the scaled tabs, or those of a disassembly, indents,
// the settings' font, black, and then the comment colours.
void FormatDocumentText(TextControl& box, EditorFlags& flags, const Settings& settings,
                        bool disassembly);

// The selection, as a keyboard paste leaves it: scaled tabs, indent 120,
// the settings' font, black.
void FormatPastedText(TextControl& box, const Settings& settings);

// After the settings dialog changed HangingIndent or NoRightWrap, on a
// source window: the indents of every line and the right margin.
void ApplyWrapSettings(TextControl& box, EditorFlags& flags, const Settings& settings);

// The six stops, the indent and the hanging indent of a disassembly window.
void ApplyDisassemblyParagraphs(TextControl& box);

}  // namespace korvex
