#pragma once
// The life of a document: new, open, save, save as, close, and the recent
// files. Everything acts on the active source window of the workspace, as
// the menu commands do, and asks through the host and the file dialogs.

#include <string>

#include "base/host.h"
#include "workbench/document_table.h"
#include "workbench/document_window.h"
#include "workbench/recent_files.h"
#include "workbench/settings.h"

namespace korvex {

class FileCommands {
  public:
    FileCommands(Settings& settings, DocumentTable& documents, RecentFiles& recent,
                 Workspace& workspace, FileDialogs& dialogs, Host& host)
        : settings_(settings),
          documents_(documents),
          recent_(recent),
          workspace_(workspace),
          dialogs_(dialogs),
          host_(host) {}

    // An empty window "Unbenannt n" in the first free slot.
    DocumentWindow* NewDocument();
    void OpenSourceDialog();
    // Activates the window showing `name` (the exact caption), else loads the
    // file: into the active window if that is an empty "Unbenannt", else into
    // a new one. Nullptr when the file can't be read (the user is told).
    DocumentWindow* OpenSource(const std::string& name);
    // Saves the active window if it is dirty, with a backup of the old file.
    void SaveDocument();
    // Always asks for a name; any window whose text isn't empty.
    void SaveDocumentAs();
    // The name chosen in "Speichern unter", empty on cancel.
    std::string SaveAsDialog(const std::string& name);

    // A window is about to close: a dirty one asks whether to save. False
    // when the user cancelled, which also stops the end of the program.
    bool QueryClose(DocumentWindow& window);
    // A window has closed: its slot becomes free.
    void DocumentClosed(DocumentWindow& window);

    void NoteRecentFile(const std::string& name);
    void UpdateRecentMenus();
    // A recent entry (1 is the newest) chosen from the menu.
    void OpenRecentFile(int entry);

    // The user changed the window's text.
    void TextEdited(DocumentWindow& window);
    // The window became active or its selection changed.
    void Touched(DocumentWindow& window);

  private:
    DocumentWindow* takeWindow(int& slot);
    bool saveUnder(DocumentWindow& window, const std::string& name);
    void finishSave(DocumentWindow& window, bool disassembly, const std::string& name);
    void tellWriteFailure(const std::string& name);

    Settings& settings_;
    DocumentTable& documents_;
    RecentFiles& recent_;
    Workspace& workspace_;
    FileDialogs& dialogs_;
    Host& host_;
};

}  // namespace korvex
