// The disassembler from the workbench: the driver first, then the open
// dialog, then the run into a new "Disassembling " window with the progress
// in the status bar.

#include <QApplication>
#include <QEventLoop>
#include <QProgressBar>

#include "assembler/cpu_driver.h"
#include "base/cp1252.h"
#include "base/text.h"
#include "gui/disassembler_options_dialog.h"
#include "gui/main_window.h"
#include "gui/qt_text.h"
#include "workbench/disassembly_request.h"
#include "workbench/last_dirs.h"

namespace korvex::gui {
namespace {

// Opens the window when the run knows the file holds bytes, and keeps it
// up to date while the run works.
class WindowMonitor : public DisassemblyMonitor {
  public:
    WindowMonitor(std::function<EditorDocument*()> open, QProgressBar& bar)
        : open_(std::move(open)), bar_(bar) {}

    void windowText(const std::string& caption, const std::string& text) override {
        if (document_ == nullptr) document_ = open_();
        if (document_ == nullptr) return;
        document_->setCaption(caption);
        document_->loadText(text);
        repaint();
    }

    void progress(int percent) override {
        bar_.setValue(percent);
        repaint();
    }

    EditorDocument* document() const { return document_; }

  private:
    static void repaint() {
        // Paint only: the user's input waits until the run is over.
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }

    std::function<EditorDocument*()> open_;
    QProgressBar& bar_;
    EditorDocument* document_ = nullptr;
};

}  // namespace

void MainWindow::disassemble() {
    DisassemblerSettings run;
    run.programFolder = programFolder_;
    run.controllerName = settings_.ControllerName;
    run.sourceExtension = settings_.sourceExtension;
    run.temporaryFolder = programFolder_;
    Disassembler disassembler(host_, run);

    // A driver that can't be read ends the run before anything is asked.
    const DriverReading driver =
        readCpuDriverFile(cpuDriverPath(removeAll(settings_.ControllerName, '\''), programFolder_));
    if (driver.failure) {
        disassembler.disassembleFile({}, disassemblerOptions_);
        return;
    }
    const std::string chosen = dialogs_.openFileName(disassemblyFileRequest(settings_));
    if (chosen.empty()) return;
    noteChosenFolder(settings_, chosen);

    WindowMonitor monitor(
        [this]() -> EditorDocument* {
            auto* document = dynamic_cast<EditorDocument*>(commands_.NewDocument());
            if (document != nullptr && document->editor() != nullptr)
                document->editor()->useDisassemblyTabs();
            return document;
        },
        *progress_);
    progress_->setValue(0);
    progress_->show();
    setWaitCursor(true);
    const DisassemblyResult result =
        disassembler.disassembleFile(toUtf8(chosen), disassemblerOptions_, &monitor);
    setWaitCursor(false);
    progress_->hide();
    if (result.window && monitor.document() != nullptr) {
        monitor.document()->setCaption(result.window->caption);
        monitor.document()->loadText(result.window->text);
    }
    refreshCommands();
}

void MainWindow::configureDisassembler() {
    DisassemblerOptionsDialog dialog(
        disassemblerOptions_, [this](int) { showHelpFor("frmDisassKonfig"); }, this);
    dialog.exec();
}

}  // namespace korvex::gui
