#pragma once
// A source editor on the plain text control, with its events recorded and
// the colours of the text readable at a glance.

#include <gtest/gtest.h>

#include <string>

#include "workbench/plain_text_control.h"
#include "workbench/source_editor.h"

namespace korvex {

struct RecordedEvents : EditorEvents {
    void SetDirty() override { ++dirty; }
    void BecameActive() override { ++activations; }
    void SelectionExtentChanged(bool hasSelection) override { selection = hasSelection; }
    void ShowCaretLine(std::int32_t line) override { caretLine = line; }
    int dirty = 0;
    int activations = 0;
    bool selection = false;
    std::int32_t caretLine = 0;
};

class EditorTest : public ::testing::Test {
  protected:
    static constexpr std::int32_t kComment = 0x008000;

    // One letter per character: "." black, "c" the comment colour, "?" else.
    std::string colours() const {
        std::string letters;
        for (std::int32_t at = 0; at < box.TextLength(); ++at) {
            const std::int32_t colour = box.FormatAt(at).colour;
            letters += colour == kBlack ? '.' : colour == kComment ? 'c' : '?';
        }
        return letters;
    }

    // Text put in as a loaded file is: coloured, not dirty, caret at 0.
    void load(const std::string& text) {
        editor.LoadText(text);
        events = RecordedEvents{};
    }

    // A key typed as the control does it: the text changes at the caret.
    void type(const std::string& text) { box.SetSelText(text); }

    PlainTextControl box;
    EditorFlags flags;
    Settings settings = defaultSettings("/korvex/");
    RecordedEvents events;
    SourceEditor editor{box, flags, settings, events};
};

}  // namespace korvex
