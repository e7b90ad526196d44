#include "workbench/auto_indent.h"

#include <string>

#include "workbench/editor_guards.h"

namespace korvex {

bool EnterWithIndent(TextControl& box, EditorFlags& flags) {
    if (box.SelLength() != 0 || box.SelStart() <= 0) return false;
    FlagGuard selection(flags.SuspendSelChange);
    const std::int32_t saved = box.SelStart();
    box.UpTo("\r\n", false, false);
    const std::int32_t lineStart = box.SelStart();
    const bool atLineStart = lineStart == saved;

    // Tabs from the line start, one character at a time, until one is no
    // tab or the caret is reached; from the line start itself, all of them.
    int tabs = 0;
    while (box.CharAt(lineStart + tabs) == '\t') {
        ++tabs;
        if (lineStart + tabs == saved) break;
    }

    box.SetSelStart(saved);
    const std::string indent(static_cast<std::size_t>(tabs), '\t');
    box.SetSelText(atLineStart ? indent + "\r\n" : "\r\n" + indent);
    return true;
}

}  // namespace korvex
