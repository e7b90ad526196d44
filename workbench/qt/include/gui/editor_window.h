#pragma once
// frmNotePad: one source window of the workbench (also the "Disassembling "
// windows). The main window creates, finds and closes them through this
// interface; what happens inside the text is the editor logic's business.

#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "workbench/editor_flags.h"
#include "workbench/go_to_line.h"
#include "workbench/settings.h"

class QTextEdit;

namespace korvex {
class Host;
class RuntimeFailure;
class SourceEditor;
class TextControl;
}  // namespace korvex

namespace korvex::gui {

class QtTextControl;

class EditorWindow : public QWidget {
    Q_OBJECT

  public:
    EditorWindow(EditorFlags& flags, const Settings& settings, QWidget* parent = nullptr);
    ~EditorWindow() override;

    // The slot in the document table, kept as the window's Tag.
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

    // The text control and the editor logic on it, for find and replace and
    // the commands of the main window.
    TextControl& textControl();
    SourceEditor& editor();
    bool hasSelection() const;

    // Commands. The font dialog formats the document afresh; a wizard's
    // text is recoloured; the block commands take ";" or a tab (mnuEKomment,
    // mnuEentKomment, mnuEInsertTab, mnuEDelTab); mnuEDelete; mnuEGoto.
    void formatDocumentText();
    void recolourWholeDocument();
    void blockEdit(bool add, char symbol);
    void deleteSelection();
    void goToLine();
    void toggleBookmark();

    // F1 hands the word at the caret to the help lookup.
    void setHelpHandler(std::function<void(const std::string&)> handler);
    // The input box of go to line; a QInputDialog unless set.
    void setPrompt(PromptFunction prompt);
    // Where failures are shown; a message box of the window unless set.
    void setHost(Host* host);

  signals:
    // The user changed the text (not code): the document becomes dirty.
    void textEdited();
    // The selection changed while the handler was not suspended: this window
    // becomes the ActiveDocument.
    void selectionTouched();
    // Caret line or insert/overwrite mode changed (the line is shown by the
    // selection handler, so not while Shift, Ctrl or Alt is held).
    void caretStateChanged();
    // Cut, copy and delete are enabled exactly while there is a selection.
    void selectionExtentChanged(bool hasSelection);
    // A key below F1 or a click in the text: a search starts afresh.
    void searchInterrupted();
    // A right click in the text asks for the edit menu (mnuEdit) as a popup.
    void editMenuRequested(const QPoint& globalPosition);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    class Events;

    bool disassembly() const;
    void applyBackground();
    void reportFailure(const RuntimeFailure& failure, const char* procedure);
    // Runs a command; a failure shows its box instead of leaving the event.
    void guarded(const char* procedure, const std::function<void()>& action);
    bool keyPress(QKeyEvent* key);
    bool keyRelease(QKeyEvent* key);
    bool shortcutOverride(QKeyEvent* key);
    bool mouseEvent(QEvent* event);

    EditorFlags& flags_;
    Settings settings_;
    QTextEdit* text_ = nullptr;
    std::unique_ptr<QtTextControl> box_;
    std::unique_ptr<Events> events_;
    std::unique_ptr<SourceEditor> editor_;
    std::function<void(const std::string&)> help_;
    PromptFunction prompt_;
    Host* host_ = nullptr;
    bool disassemblyTabs_ = false;
    bool heldModifier_ =
        false;  // this window suspended the selection handler for Shift, Ctrl or Alt
    int slot_ = 0;
};

}  // namespace korvex::gui
