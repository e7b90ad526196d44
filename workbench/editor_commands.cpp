#include "workbench/editor_commands.h"

#include "workbench/document_format.h"
#include "workbench/editor_guards.h"

namespace korvex {

void SelectLine(TextControl& box) {
    box.UpTo("\r\n", false, false);
    box.Span("\r\n", true, true);
    box.SetSelLength(box.SelLength() + 2);
}

void SelectToPunctuation(TextControl& box) {
    box.Span(" .?!:", true, true);
}

bool DeleteSelection(TextControl& box) {
    if (box.TextLength() == 0) return false;
    if (box.SelLength() == 0) box.SetSelLength(box.CharAt(box.SelStart()) == '\r' ? 2 : 1);
    box.SetSelText("");
    return box.TextLength() == 0;
}

void FormatKeyboardPaste(TextControl& box, EditorFlags& flags, const Settings& settings,
                         std::int32_t& keyDownCaret) {
    ScaledSourceTabs(settings.EditorFontSize);  // fails here, or not at all
    OutOfSight hidden(box);
    const std::int32_t caret = box.SelStart();
    box.Select(keyDownCaret, caret - keyDownCaret);
    {
        FlagGuard change(flags.SuspendChange);
        FormatPastedText(box, settings);
    }
    box.SetSelStart(caret);
    keyDownCaret = caret;
}

}  // namespace korvex
