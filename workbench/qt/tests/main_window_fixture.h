#pragma once
// The main window with its outside scripted: message boxes answer from a
// script, file dialogs return prepared names, recent files stay in memory,
// and korvex.cfg lives in a scratch folder.

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>
#include <QTextEdit>
#include <deque>

#include "gui/command_menus.h"
#include "gui/command_toolbar.h"
#include "gui/main_window.h"
#include "gui/qt_text.h"
#include "testing/process.h"
#include "testing/scripted_host.h"
#include "workbench/user_settings_store.h"

namespace korvex::gui {

class ScriptedDialogs : public FileDialogs {
  public:
    std::string openFileName(const FileDialogRequest& request) override { return next(request); }
    std::string saveFileName(const FileDialogRequest& request) override { return next(request); }

    std::deque<std::string> answers;
    std::vector<FileDialogRequest> requests;

  private:
    std::string next(const FileDialogRequest& request) {
        requests.push_back(request);
        if (answers.empty()) return {};
        std::string name = answers.front();
        answers.pop_front();
        return name;
    }
};

struct Bench {
    // A first start: korvex.cfg is missing, the question is answered Yes.
    Bench() {
        window.show();
        started = window.start("");
        host.boxes.clear();
    }

    void trigger(const char* name) { window.menus()->action(QString::fromLatin1(name))->trigger(); }
    QAction* button(int position) const { return window.toolbar()->position(position); }
    QString caption() const {
        QMdiSubWindow* frame = window.area()->currentSubWindow();
        return frame != nullptr ? frame->windowTitle() : QString();
    }
    QTextEdit* text() const { return window.activeEditor()->textEdit(); }
    int windows() const { return static_cast<int>(window.area()->subWindowList().size()); }
    // Closed windows go at the next turn of the event loop.
    static void settle() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

    testing::ScratchFolder folder;
    ScriptedHost host;
    ScriptedDialogs dialogs;
    MemoryUserSettingsStore store;
    MainWindow window{folder.path(), {host, dialogs, store}};
    bool started = false;
};

}  // namespace korvex::gui
