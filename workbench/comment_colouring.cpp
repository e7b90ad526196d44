#include "workbench/comment_colouring.h"

#include <string>

#include "workbench/editor_guards.h"
#include "workbench/line_bounds.h"

namespace korvex {
namespace {

void colourComments(TextControl& box, const std::string& text, std::int32_t commentColour) {
    std::size_t from = 0;
    while (true) {
        const std::size_t semicolon = text.find(';', from);
        if (semicolon == std::string::npos) return;
        const std::size_t lineEnd = text.find("\r\n", semicolon + 1);
        // The CR belongs to the comment; the next search starts at the LF.
        const std::size_t end = lineEnd == std::string::npos ? text.size() : lineEnd + 1;
        box.Select(static_cast<std::int32_t>(semicolon),
                   static_cast<std::int32_t>(end - semicolon));
        box.SetSelColor(commentColour);
        from = end;
    }
}

}  // namespace

void ApplyCommentColours(TextControl& box, EditorFlags& flags, std::int32_t commentColour) {
    const std::string text = box.Text();
    const std::int32_t caret = box.SelStart();
    FlagGuard selection(flags.SuspendSelChange);
    OutOfSight hidden(box);
    colourComments(box, text, commentColour);
    box.SetSelStart(caret);
}

void RecolourWholeDocument(TextControl& box, EditorFlags& flags, std::int32_t commentColour) {
    const std::string text = box.Text();
    if (text.empty()) return;
    const std::int32_t caret = box.SelStart();
    FlagGuard selection(flags.SuspendSelChange);
    OutOfSight hidden(box);
    box.Select(0, box.TextLength());
    box.SetSelColor(kBlack);
    colourComments(box, text, commentColour);
    box.SetSelStart(caret);
}

bool ColourLineComment(TextControl& box, EditorFlags& flags, std::int32_t position,
                       std::int32_t commentColour) {
    const LineBounds line = LineBoundsAt(box.Text(), position);
    const std::size_t semicolon = line.text.find(';');
    if (semicolon == std::string::npos) return false;
    FlagGuard change(flags.SuspendChange);
    const std::int32_t start = line.start + static_cast<std::int32_t>(semicolon);
    box.Select(start, line.end - start);
    box.SetSelColor(commentColour);
    return true;
}

}  // namespace korvex
