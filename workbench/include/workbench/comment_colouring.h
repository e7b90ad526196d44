#pragma once
// The one colouring of the source editor: from the first ";" of a line to its
// end a comment, in the comment colour; all else black. It knows nothing of
// the assembler's syntax: a ";" in a string starts a comment too.

#include <cstdint>
#include <string>

#include "workbench/editor_flags.h"
#include "workbench/text_control.h"

namespace korvex {

// Calls `stretch(start, end)` for every comment of `text`: from a ";" up to
// and with the CR of its line, or to the end of the text.
template <typename Stretch>
void ForEachComment(const std::string& text, Stretch stretch) {
    std::size_t from = 0;
    while (true) {
        const std::size_t semicolon = text.find(';', from);
        if (semicolon == std::string::npos) return;
        const std::size_t lineEnd = text.find("\r\n", semicolon + 1);
        // The next search starts at the LF.
        const std::size_t end = lineEnd == std::string::npos ? text.size() : lineEnd + 1;
        stretch(semicolon, end);
        from = end;
    }
}

// Colours every comment, each with the line end behind it; other text keeps
// its colour. After a file is loaded.
void ApplyCommentColours(TextControl& box, EditorFlags& flags, std::int32_t commentColour);

// Turns the whole text black first. For text that code put in.
void RecolourWholeDocument(TextControl& box, EditorFlags& flags, std::int32_t commentColour);

// Colours the comment of the line at `position`, from its first ";" to the
// line end without the CR; true if the line has one. Leaves it selected.
bool ColourLineComment(TextControl& box, EditorFlags& flags, std::int32_t position,
                       std::int32_t commentColour);

}  // namespace korvex
