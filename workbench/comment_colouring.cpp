#include "workbench/comment_colouring.h"

#include <string>

#include "workbench/editor_guards.h"
#include "workbench/line_bounds.h"

namespace korvex {
namespace {

void colourComments(TextControl& box, const std::string& text, std::int32_t commentColour) {
    ForEachComment(text, [&](std::size_t start, std::size_t end) {
        box.Select(static_cast<std::int32_t>(start), static_cast<std::int32_t>(end - start));
        box.SetSelColor(commentColour);
    });
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
