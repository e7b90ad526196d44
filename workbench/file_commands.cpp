#include "workbench/file_commands.h"

#include "base/cp1252.h"
#include "base/failure.h"
#include "base/text.h"
#include "workbench/captions.h"
#include "workbench/last_dirs.h"
#include "workbench/source_file.h"

namespace korvex {
namespace {

class WaitCursor {
  public:
    explicit WaitCursor(Workspace& workspace) : workspace_(workspace) {
        workspace_.setWaitCursor(true);
    }
    ~WaitCursor() { workspace_.setWaitCursor(false); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

  private:
    Workspace& workspace_;
};

std::string saveAsFilter(const Settings& settings, const std::string& name) {
    const std::string listing =
        "(*." + settings.listingExtension + ")|*." + settings.listingExtension + "|";
    const std::string all = "Alle Dateien (*.*)|*.*";
    if (endsWith(name, "." + settings.disassemblyExtension)) {
        return "Disassembling (*." + settings.disassemblyExtension + ")|*." +
               settings.disassemblyExtension + "|Disassemblingdatei " + listing + all;
    }
    return "Programmdatei (*." + settings.sourceExtension + ")|*." + settings.sourceExtension +
           "|Listingdatei " + listing + all;
}

}  // namespace

DocumentWindow* FileCommands::takeWindow(int& slot) {
    slot = documents_.takeFreeSlot();
    DocumentWindow* window = workspace_.createDocumentWindow();
    documents_.setWindow(slot, window);
    window->setCaption(untitledCaption(slot));
    return window;
}

DocumentWindow* FileCommands::NewDocument() {
    int slot = 0;
    DocumentWindow* window = takeWindow(slot);
    documents_.ActiveDocument = slot;
    workspace_.showDocumentWindow(*window);
    documents_.state(slot).Dirty = false;
    UpdateRecentMenus();
    return window;
}

void FileCommands::OpenSourceDialog() {
    const std::string name = dialogs_.openFileName(
        FileDialogRequest{text8("Datei öffnen"), settings_.sourceFolder, "",
                          "Quelldateien (*." + settings_.sourceExtension + ")|*." +
                              settings_.sourceExtension + "|Alle Dateien (*.*)|*.*",
                          1});
    if (name.empty()) return;
    noteChosenFolder(settings_, name);
    OpenSource(name);
    NoteRecentFile(name);
}

DocumentWindow* FileCommands::OpenSource(const std::string& name) {
    for (int slot : documents_.openSlots()) {
        DocumentWindow* window = documents_.window(slot);
        if (window != nullptr && window->caption() == name) {
            workspace_.focusDocumentWindow(*window);
            return window;
        }
    }
    std::string text;
    try {
        WaitCursor wait(workspace_);
        text = readSourceFile(name);
    } catch (const RuntimeFailure& failure) {
        host_.messageBox(std::string(kMainCaption),
                         text8("Datei kann nicht geöffnet werden: ") + name + ", #" +
                             decimalText(failure.number()),
                         MessageButtons::Ok, MessageIcon::Exclamation);
        return nullptr;
    }
    WaitCursor wait(workspace_);
    DocumentWindow* window = workspace_.activeDocumentWindow();
    int slot = documents_.slotOf(window);
    const bool reuse =
        slot != 0 && isUntitled(window->caption()) && trimBlanks(window->text()).empty();
    if (!reuse) window = takeWindow(slot);
    window->loadText(text);
    window->setCaption(name);
    documents_.state(slot).Dirty = false;
    if (!reuse) documents_.ActiveDocument = slot;
    workspace_.showDocumentWindow(*window);
    return window;
}

void FileCommands::SaveDocument() {
    DocumentWindow* window = workspace_.activeDocumentWindow();
    const int slot = documents_.slotOf(window);
    if (slot == 0 || !documents_.state(slot).Dirty) return;
    const std::string caption = window->caption();
    std::string name;
    if (isUntitled(caption)) {
        if (window->text().empty()) return;
        name = SaveAsDialog(caption);
        if (name.empty()) return;
    } else {
        name = fileOfCaption(caption);
    }
    if (saveUnder(*window, name)) finishSave(*window, isDisassembly(caption), name);
}

void FileCommands::SaveDocumentAs() {
    DocumentWindow* window = workspace_.activeDocumentWindow();
    if (documents_.slotOf(window) == 0 || window->text().empty()) return;
    const std::string caption = window->caption();
    const std::string name =
        SaveAsDialog(isUntitled(caption) ? std::string(kUntitled) : fileOfCaption(caption));
    if (name.empty()) return;
    if (saveUnder(*window, name)) finishSave(*window, isDisassembly(caption), name);
}

void FileCommands::finishSave(DocumentWindow& window, bool disassembly, const std::string& name) {
    if (disassembly) window.setCaption(std::string(kDisassemblingPrefix) + name);
    NoteRecentFile(name);
}

std::string FileCommands::SaveAsDialog(const std::string& name) {
    const std::string chosen = dialogs_.saveFileName(FileDialogRequest{
        "Speichern unter", settings_.sourceFolder, name, saveAsFilter(settings_, name), 1});
    if (!chosen.empty()) noteChosenFolder(settings_, chosen);
    return chosen;
}

void FileCommands::tellWriteFailure(const std::string& name) {
    const RuntimeFailure failure = currentFailure();
    host_.messageBox(std::string(kMainCaption),
                     failureHeadline("Fehler Nummer", failure, true) + std::string(kCrLf) +
                         failure.description() + ": " + name,
                     MessageButtons::Ok, MessageIcon::Critical);
}

bool FileCommands::saveUnder(DocumentWindow& window, const std::string& name) {
    try {
        WaitCursor wait(workspace_);
        writeBackupOf(name);
        writeTextFile(window.text(), name);
    } catch (...) {
        tellWriteFailure(name);
        return false;
    }
    window.setCaption(name);
    documents_.state(documents_.slotOf(&window)).Dirty = false;
    return true;
}

bool FileCommands::QueryClose(DocumentWindow& window) {
    const int slot = documents_.slotOf(&window);
    if (slot == 0 || !documents_.state(slot).Dirty) return true;
    const std::string caption = window.caption();
    const MessageAnswer answer = host_.messageBox(
        std::string(kMainCaption),
        "Der Text in \"" + caption + text8("\" wurde geändert.") + std::string(kCrLf) +
            std::string(kCrLf) + text8("Änderungen speichern?"),
        MessageButtons::YesNoCancel, MessageIcon::Exclamation);
    if (answer == MessageAnswer::Cancel) return false;
    if (answer != MessageAnswer::Yes) return true;
    // No backup here and no "Disassembling " rule: the caption is the name.
    const std::string name = isUntitled(caption) ? SaveAsDialog(std::string(kUntitled)) : caption;
    if (name.empty()) return true;
    window.removeBookmarks();
    try {
        writeTextFile(window.text(), name);
    } catch (...) {
        // The text would be lost with the window: it stays open.
        tellWriteFailure(name);
        return false;
    }
    NoteRecentFile(name);
    return true;
}

void FileCommands::DocumentClosed(DocumentWindow& window) {
    documents_.release(documents_.slotOf(&window));
    if (!documents_.anyOpen()) documents_.ActiveDocument = 0;
    UpdateRecentMenus();
}

void FileCommands::NoteRecentFile(const std::string& name) {
    recent_.note(name, settings_.sourceExtension);
    UpdateRecentMenus();
}

void FileCommands::UpdateRecentMenus() {
    const std::vector<std::string> paths = recent_.paths();
    if (!paths.empty()) workspace_.showRecentFiles(paths);
}

void FileCommands::OpenRecentFile(int entry) {
    const std::vector<std::string> paths = recent_.paths();
    if (entry < 1 || entry > static_cast<int>(paths.size())) return;
    const std::string path = paths[static_cast<std::size_t>(entry - 1)];
    OpenSource(path);
    if (entry == 1) return;
    recent_.moveToTop(entry, path);
    UpdateRecentMenus();
}

void FileCommands::TextEdited(DocumentWindow& window) {
    if (const int slot = documents_.slotOf(&window); slot != 0) documents_.state(slot).Dirty = true;
}

void FileCommands::Touched(DocumentWindow& window) {
    if (const int slot = documents_.slotOf(&window); slot != 0) documents_.ActiveDocument = slot;
}

}  // namespace korvex
