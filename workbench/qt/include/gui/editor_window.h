#pragma once
// frmNotePad: one source window of the workbench (also the "Disassembling "
// windows). The main window creates, finds and closes them through this
// interface; what happens inside the text is the editor logic's business.

#include <QWidget>
#include <string>

#include "workbench/editor_flags.h"
#include "workbench/settings.h"

class QTextEdit;

namespace korvex::gui {

class EditorWindow : public QWidget {
    Q_OBJECT

  public:
    EditorWindow(EditorFlags& flags, const Settings& settings, QWidget* parent = nullptr);
    ~EditorWindow() override;

    // The slot in the document table, kept as the design's Tag.
    int slot() const { return slot_; }
    void setSlot(int slot) { slot_ = slot; }

    // The text widget itself (RichTextBox1).
    QTextEdit* textEdit() const;

    // Replaces the whole text (Windows-1252, CR LF) as code does: no change
    // signal, comment colouring applied, caret at the start.
    void setSourceText(const std::string& cp1252);
    // The text as it is saved or assembled: bookmark pictures removed.
    std::string sourceText() const;

    // Font, background, comment colour, wrapping and bookmarks from the settings.
    void applySettings(const Settings& settings);
    void removeBookmarks();

    // The six tab stops of a disassembly window instead of the editor's own.
    void useDisassemblyTabs();

    // The caret's 1-based line and the insert/overwrite mode, for the status bar.
    int caretLine() const;
    bool overwriteMode() const;

  signals:
    // The user changed the text (not code): the document becomes dirty.
    void textEdited();
    // The selection changed while the handler was not suspended: this window
    // becomes the ActiveDocument.
    void selectionTouched();
    // Caret line or insert/overwrite mode changed.
    void caretStateChanged();

  private:
    EditorFlags& flags_;
    QTextEdit* text_ = nullptr;
    int slot_ = 0;
};

}  // namespace korvex::gui
