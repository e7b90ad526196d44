#include "workbench/source_editor.h"

#include "workbench/auto_indent.h"
#include "workbench/block_edit.h"
#include "workbench/bookmarks.h"
#include "workbench/comment_colouring.h"
#include "workbench/document_format.h"
#include "workbench/editor_commands.h"
#include "workbench/editor_guards.h"
#include "workbench/help_word.h"
#include "workbench/line_bounds.h"

namespace korvex {

EditorEvents::~EditorEvents() = default;

SourceEditor::SourceEditor(TextControl& box, EditorFlags& flags, const Settings& settings,
                           EditorEvents& events)
    : box_(box), flags_(flags), settings_(settings), events_(events) {
    box_.SetListener(this);
}

SourceEditor::~SourceEditor() {
    box_.SetListener(nullptr);
}

std::int32_t SourceEditor::commentColour() const {
    return settings_.Colours[kCommentColour];
}

void SourceEditor::Change() {
    if (flags_.SuspendChange) return;
    events_.SetDirty();
    if (flags_.LineColourReset) return;
    // The first key in a line turns all of it black, comment and all, until
    // the caret leaves it.
    flags_.LineColourReset = true;
    FlagGuard selection(flags_.SuspendSelChange);
    const std::int32_t start = box_.SelStart();
    const std::int32_t length = box_.SelLength();
    const LineBounds line = LineBoundsAt(box_.Text(), start);
    box_.Select(line.start, line.end - line.start);
    box_.SetSelColor(kBlack);
    box_.Select(start, length);
    state_.LineEdited = true;
}

void SourceEditor::SelChange() {
    if (flags_.SuspendSelChange) return;
    try {
        if (box_.TextLength() == 0) {
            ApplyStartFormat(box_, flags_, settings_);
            return;
        }
        events_.BecameActive();
        events_.SelectionExtentChanged(box_.SelLength() >= 1);
        const std::int32_t line = box_.GetLineFromChar(box_.SelStart()) + 1;
        events_.ShowCaretLine(line);

        if (line != state_.LastLine) {
            state_.LastLine = line;
            flags_.LineColourReset = false;
            if (state_.LineEdited) {
                state_.LineEdited = false;
                FlagGuard selection(flags_.SuspendSelChange);
                const std::int32_t start = box_.SelStart();
                const std::int32_t length = box_.SelLength();
                ColourLineComment(box_, flags_, state_.LastCaret, commentColour());
                box_.Select(start, length);
            }
        }
        if (!flags_.LineColourReset) {
            // A comment that came without a key (a paste) gets its colour.
            FlagGuard selection(flags_.SuspendSelChange);
            const std::int32_t start = box_.SelStart();
            const std::int32_t length = box_.SelLength();
            const LineBounds here = LineBoundsAt(box_.Text(), start);
            const std::size_t semicolon = here.text.find(';');
            if (semicolon != std::string::npos) {
                box_.SetSelStart(here.start + static_cast<std::int32_t>(semicolon) + 1);
                if (box_.SelColor() != commentColour())
                    ColourLineComment(box_, flags_, start, commentColour());
            }
            state_.LastCaret = start;
            box_.Select(start, length);
        }
    } catch (...) {
        // A failure here ends the handler quietly.
    }
}

void SourceEditor::InitialiseWindow() {
    box_.SetFont(TextFont{settings_.EditorFontName, settings_.EditorFontSize,
                          settings_.EditorFontBold, settings_.EditorFontItalic});
    FlagGuard selection(flags_.SuspendSelChange);
    FlagGuard change(flags_.SuspendChange);
    box_.SetSelFontName(settings_.EditorFontName);
    box_.SetSelFontSize(settings_.EditorFontSize);
    box_.SetSelBold(settings_.EditorFontBold);
    box_.SetSelItalic(settings_.EditorFontItalic);
    ApplyStartFormat(box_, flags_, settings_);
    if (disassembly_) {
        const std::int32_t caret = box_.SelStart();
        box_.Select(0, box_.TextLength());
        ApplyDisassemblyParagraphs(box_);
        box_.SetSelStart(caret);
    }
}

void SourceEditor::LoadText(const std::string& text) {
    {
        FlagGuard change(flags_.SuspendChange);
        FlagGuard selection(flags_.SuspendSelChange);
        // Text and colours go in as one edit: laid out once, drawn once.
        OutOfSight hidden(box_);
        box_.SetText(text);
        ::korvex::ApplyCommentColours(box_, flags_, commentColour());
        box_.SetSelStart(0);
    }
    state_.LineEdited = false;
}

void SourceEditor::ApplyCommentColours() {
    ::korvex::ApplyCommentColours(box_, flags_, commentColour());
}

void SourceEditor::RecolourWholeDocument() {
    ::korvex::RecolourWholeDocument(box_, flags_, commentColour());
}

void SourceEditor::FormatDocumentText() {
    ::korvex::FormatDocumentText(box_, flags_, settings_, disassembly_);
}

void SourceEditor::RemoveBookmarks() {
    ::korvex::RemoveBookmarks(box_, flags_);
}

void SourceEditor::ToggleBookmark() {
    if (!settings_.BookmarksEnabled) return;
    ::korvex::ToggleBookmark(box_, flags_);
}

void SourceEditor::BlockEdit(bool add, char symbol) {
    if (::korvex::BlockEdit(box_, flags_, add, symbol, commentColour())) events_.SetDirty();
}

bool SourceEditor::Enter() {
    if (!EnterWithIndent(box_, flags_)) return false;
    state_.LineEdited = true;
    flags_.SuspendSelChange = false;
    SelChange();
    return true;
}

void SourceEditor::GoToLine(const PromptFunction& prompt) {
    ::korvex::GoToLine(box_, prompt);
}

std::string SourceEditor::HelpWord() const {
    return HelpWordAt(box_.Text(), box_.SelStart());
}

void SourceEditor::SelectLine() {
    ::korvex::SelectLine(box_);
}

void SourceEditor::SelectToPunctuation() {
    ::korvex::SelectToPunctuation(box_);
}

void SourceEditor::DeleteSelection() {
    if (::korvex::DeleteSelection(box_)) FormatDocumentText();
}

void SourceEditor::KeyDown() {
    state_.KeyDownCaret = box_.SelStart();
}

void SourceEditor::ModifierDown() {
    flags_.SuspendSelChange = true;
}

void SourceEditor::ModifiersReleased() {
    flags_.SuspendSelChange = false;
    events_.SelectionExtentChanged(box_.SelLength() >= 1);
}

void SourceEditor::KeyboardPasteDone() {
    FormatKeyboardPaste(box_, flags_, settings_, state_.KeyDownCaret);
}

}  // namespace korvex
