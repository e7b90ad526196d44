#pragma once
// Source windows, a frame and file dialogs without a screen, for the
// document commands: windows are plain records, the dialogs answer from a
// script and remember what they were asked.

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "testing/process.h"
#include "testing/scripted_host.h"
#include "workbench/document_table.h"
#include "workbench/file_commands.h"
#include "workbench/recent_files.h"
#include "workbench/settings.h"
#include "workbench/user_settings_store.h"

namespace korvex {

class FakeWindow : public DocumentWindow {
  public:
    std::string caption() const override { return caption_; }
    void setCaption(const std::string& caption) override { caption_ = caption; }
    std::string text() const override { return text_; }
    void loadText(const std::string& text) override { text_ = text; }
    void removeBookmarks() override { ++bookmarkRemovals; }

    std::string caption_;
    std::string text_;
    int bookmarkRemovals = 0;
    bool shown = false;
    int half = -1;  // 0 left, 1 right
};

class FakeWorkspace : public Workspace {
  public:
    DocumentWindow* createDocumentWindow() override {
        windows.push_back(std::make_unique<FakeWindow>());
        return windows.back().get();
    }
    void showDocumentWindow(DocumentWindow& window) override {
        as(window).shown = true;
        active = &as(window);
    }
    void focusDocumentWindow(DocumentWindow& window) override { active = &as(window); }
    DocumentWindow* activeDocumentWindow() override { return active; }
    void placeInHalf(DocumentWindow& window, bool right) override { as(window).half = right; }
    void setWaitCursor(bool waiting) override { waitCursor += waiting ? 1 : -1; }
    void showRecentFiles(const std::vector<std::string>& paths) override { menus = paths; }

    static FakeWindow& as(DocumentWindow& window) { return static_cast<FakeWindow&>(window); }

    std::vector<std::unique_ptr<FakeWindow>> windows;
    FakeWindow* active = nullptr;
    int waitCursor = 0;
    std::vector<std::string> menus;
};

class ScriptedDialogs : public FileDialogs {
  public:
    std::string openFileName(const FileDialogRequest& request) override { return answer(request); }
    std::string saveFileName(const FileDialogRequest& request) override { return answer(request); }

    std::deque<std::string> answers;
    std::vector<FileDialogRequest> requests;

  private:
    std::string answer(const FileDialogRequest& request) {
        requests.push_back(request);
        if (answers.empty()) return {};
        std::string name = answers.front();
        answers.pop_front();
        return name;
    }
};

// Everything the commands work on, with a scratch folder for the files.
struct DocumentBench {
    testing::ScratchFolder folder;
    Settings settings = defaultSettings(folder.path());
    DocumentTable documents;
    MemoryUserSettingsStore store;
    RecentFiles recent{store};
    FakeWorkspace workspace;
    ScriptedDialogs dialogs;
    ScriptedHost host;
    FileCommands commands{settings, documents, recent, workspace, dialogs, host};

    FakeWindow& active() { return *workspace.active; }
    bool dirty(const DocumentWindow& window) const {
        return documents.state(documents.slotOf(&window)).Dirty;
    }
    void type(DocumentWindow& window, const std::string& text) {
        FakeWorkspace::as(window).text_ = text;
        commands.TextEdited(window);
    }
    void close(DocumentWindow& window) { commands.DocumentClosed(window); }
};

}  // namespace korvex
