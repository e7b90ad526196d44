#pragma once
// The host of the workbench's compile runs.

#include <QCoreApplication>
#include <QElapsedTimer>

#include "base/cp1252.h"
#include "gui/compile_dialog.h"
#include "gui/main_window.h"

namespace korvex::gui {

// The run's messages go to the workbench's boxes, its report into the
// dialog, and while it works, the dialog's button is pressed through here.
class MainWindow::CompileHost : public Host {
  public:
    explicit CompileHost(MainWindow& window) : window_(window) {}

    MessageAnswer messageBox(const std::string& title, const std::string& text,
                             MessageButtons buttons, MessageIcon icon) override {
        return window_.host_.messageBox(title, text, buttons, icon);
    }
    // The run asks after every line; the window needs a turn only now and
    // then to stay responsive, and each turn costs.
    void processPendingEvents() override {
        if (sinceEvents_.isValid() && sinceEvents_.elapsed() < kEventInterval) return;
        QCoreApplication::processEvents();
        sinceEvents_.start();
    }
    void setDialogText(const std::string& text) override {
        if (window_.compileDialog_ != nullptr) window_.compileDialog_->showReport(text);
    }
    void appendDialogText(const std::string& text) override {
        if (window_.compileDialog_ != nullptr) window_.compileDialog_->appendText(text);
    }
    // Project names come as the file system writes them, captions as the
    // windows show them.
    std::optional<std::string> openWindowText(const std::string& caption) override {
        if (auto text = window_.openWindowText(caption)) return text;
        return window_.openWindowText(fromUtf8(caption));
    }

  private:
    static constexpr qint64 kEventInterval = 15;  // milliseconds

    MainWindow& window_;
    QElapsedTimer sinceEvents_;
};

}  // namespace korvex::gui
