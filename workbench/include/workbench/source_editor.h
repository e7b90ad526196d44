#pragma once
// One source window's editing logic, bound to its text control: the change
// and selection handlers with the window's own state, and the commands of
// the window. The three flags are shared by all windows; the settings are
// the window's, kept by whoever owns it.

#include <cstdint>
#include <string>

#include "workbench/editor_flags.h"
#include "workbench/go_to_line.h"
#include "workbench/settings.h"
#include "workbench/text_control.h"

namespace korvex {

// What the editor tells its window and the workbench.
class EditorEvents {
  public:
    virtual ~EditorEvents();
    // The text differs from the file now.
    virtual void SetDirty() = 0;
    // This window becomes the ActiveDocument.
    virtual void BecameActive() = 0;
    // Cut, copy and delete, and the find dialog's "selection only", follow this.
    virtual void SelectionExtentChanged(bool hasSelection) = 0;
    // "Zeile " and the caret's line from 1, for the status bar.
    virtual void ShowCaretLine(std::int32_t line) = 0;
};

// The window's own editing state.
struct EditingState {
    bool LineEdited = false;        // the caret's line changed since the caret came onto it
    std::int32_t LastLine = 0;      // the line from 1 shown last
    std::int32_t LastCaret = 0;     // a caret in the line to recolour when the caret leaves it
    std::int32_t KeyDownCaret = 0;  // SelStart at the last key-down, for the paste rule
};

class SourceEditor : public TextControlListener {
  public:
    // Listens to `box` until destroyed. All references must outlive it.
    SourceEditor(TextControl& box, EditorFlags& flags, const Settings& settings,
                 EditorEvents& events);
    ~SourceEditor() override;
    SourceEditor(const SourceEditor&) = delete;
    SourceEditor& operator=(const SourceEditor&) = delete;

    // A disassembly window keeps its own tab stops when formatted.
    void SetDisassembly(bool disassembly) { disassembly_ = disassembly; }
    bool Disassembly() const { return disassembly_; }
    const EditingState& State() const { return state_; }

    // The text control's events: a text change blackens the caret's line
    // for editing; a selection change shows the line, and recolours the line
    // the caret left and a comment that arrived without a key.
    void Change() override;
    void SelChange() override;

    // On load: the control's font and the start format.
    void InitialiseWindow();
    // Replaces the text as code does: not dirty, comments coloured, caret at 0.
    void LoadText(const std::string& text);

    void ApplyCommentColours();
    void RecolourWholeDocument();
    // May raise the overflow failure of the tab arithmetic.
    void FormatDocumentText();
    void RemoveBookmarks();
    void ToggleBookmark();
    void BlockEdit(bool add, char symbol);
    // False when the key is the control's own.
    bool Enter();
    void GoToLine(const PromptFunction& prompt);
    std::string HelpWord() const;
    void SelectLine();
    void SelectToPunctuation();
    void DeleteSelection();

    // The keyboard: every key-down notes the caret; Shift, Ctrl or Alt held
    // down suspend the selection handler until the last is released; a
    // keyboard paste is formatted when its key comes up.
    void KeyDown();
    void ModifierDown();
    void ModifiersReleased();
    void KeyboardPasteDone();

  private:
    std::int32_t commentColour() const;

    TextControl& box_;
    EditorFlags& flags_;
    const Settings& settings_;
    EditorEvents& events_;
    EditingState state_;
    bool disassembly_ = false;
};

}  // namespace korvex
