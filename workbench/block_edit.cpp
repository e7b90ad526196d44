#include "workbench/block_edit.h"

#include <string>

#include "base/text.h"
#include "workbench/editor_guards.h"

namespace korvex {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

// The caret stands at a line start. Returns whether the symbol went in.
bool addSymbol(TextControl& box, char symbol, std::int32_t commentColour) {
    box.SetSelText(std::string(1, symbol));
    if (symbol == kCommentSymbol) {
        box.Span(kLineEnd, true, true);
        const std::int32_t length = box.SelLength();
        box.Select(box.SelStart() - 1, length + 1);
        box.SetSelColor(commentColour);
    }
    return true;
}

// The caret stands at a line start. Returns whether a symbol came off.
bool removeSymbol(TextControl& box, char symbol) {
    if (box.CharAt(box.SelStart()) == '\r') return false;  // an empty line
    box.SetSelLength(1);
    bool removed = false;
    if (box.SelText() == std::string(1, symbol)) {
        box.SetSelText("");
        removed = true;
    }
    if (symbol == kCommentSymbol) {
        box.Span(kLineEnd, true, true);
        if (!startsWith(cleaned(box.SelText()), ";")) box.SetSelColor(kBlack);
    }
    return removed;
}

}  // namespace

bool BlockEdit(TextControl& box, EditorFlags& flags, bool add, char symbol,
               std::int32_t commentColour) {
    const std::int32_t start = box.SelStart();
    std::int32_t length = box.SelLength();
    const std::int32_t first = box.GetLineFromChar(start);
    FlagGuard selection(flags.SuspendSelChange);
    FlagGuard change(flags.SuspendChange);
    OutOfSight hidden(box);

    // A selection that ends at a line start leaves that line out.
    box.SetSelStart(length >= 2 ? start + length - 1 : start + length);
    bool changed = false;
    while (true) {
        box.UpTo(kLineEnd, false, false);
        if (add) {
            changed = addSymbol(box, symbol, commentColour) || changed;
            ++length;
        } else if (removeSymbol(box, symbol)) {
            changed = true;
            --length;
        }
        // On to the end of the line above. The walk stops before offset 2,
        // so a first line of one character may be left as it is.
        const std::int32_t above = box.SelStart() - 2;
        if (above < 2) break;
        box.SetSelStart(above);
        if (box.GetLineFromChar(above) < first) break;
    }

    if (add) {
        box.Select(start + 1, length - 1);
    } else if (start < 1) {
        box.SetSelStart(0);
    } else {
        box.Select(start - 1, length + 1);
    }
    return changed;
}

}  // namespace korvex
