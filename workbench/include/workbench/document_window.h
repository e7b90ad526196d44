#pragma once
// What the document commands need of the windows round them. The Qt shell
// implements these with its source windows and QMdiArea; the tests with plain
// objects. Texts are Windows-1252 with CR LF.

#include <string>
#include <vector>

namespace korvex {

// One source window (frmNotePad), seen from the file commands.
class DocumentWindow {
  public:
    virtual ~DocumentWindow();

    virtual std::string caption() const = 0;
    virtual void setCaption(const std::string& caption) = 0;
    // The text as it is saved: bookmark pictures left out, the window keeps them.
    virtual std::string text() const = 0;
    // Replaces the whole text by code: not a user's change, comments
    // coloured, the caret at the start.
    virtual void loadText(const std::string& text) = 0;
    virtual void removeBookmarks() = 0;
};

// The frame that holds the source windows (frmMDI with its QMdiArea).
class Workspace {
  public:
    virtual ~Workspace();

    // A new, still hidden source window; the workspace owns it.
    virtual DocumentWindow* createDocumentWindow() = 0;
    virtual void showDocumentWindow(DocumentWindow& window) = 0;
    virtual void focusDocumentWindow(DocumentWindow& window) = 0;
    // The active child if it is a source window (ActiveForm), else nullptr.
    virtual DocumentWindow* activeDocumentWindow() = 0;
    // Left or right half of the frame's inner area.
    virtual void placeInHalf(DocumentWindow& window, bool right) = 0;
    virtual void setWaitCursor(bool waiting) = 0;
    // The recent files, newest first, for the menus.
    virtual void showRecentFiles(const std::vector<std::string>& paths) = 0;
};

// The common file dialogs. A filter is written as the classic dialog takes it:
// "Beschreibung|Muster|Beschreibung|Muster".
struct FileDialogRequest {
    std::string title;
    std::string folder;    // where the dialog starts
    std::string fileName;  // proposed name, a full path or a bare name
    std::string filter;
    int filterIndex = 1;
};

class FileDialogs {
  public:
    virtual ~FileDialogs();
    // The chosen full path, or empty when the user cancelled.
    virtual std::string openFileName(const FileDialogRequest& request) = 0;
    // Asks before an existing file is replaced.
    virtual std::string saveFileName(const FileDialogRequest& request) = 0;
};

}  // namespace korvex
