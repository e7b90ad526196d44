// The compile command of the workbench: what the active window holds goes,
// by the #PART OF rule, into TmpFile.tmp, the dialog opens with its name, and
// Start assembles it while the dialog's Abbrechen stays live.

#include <QApplication>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <algorithm>
#include <filesystem>

#include "assembler/compile_source.h"
#include "base/cp1252.h"
#include "base/program_folder.h"
#include "compile_host.h"
#include "gui/command_toolbar.h"
#include "gui/compile_dialog.h"
#include "gui/main_window.h"
#include "gui/qt_text.h"
#include "gui/twips.h"
#include "workbench/captions.h"
#include "workbench/colours.h"
#include "workbench/compile_command.h"

namespace korvex::gui {
namespace {

// The dialog is never smaller than this, in twips.
constexpr int kMinimumWidth = 5900;
constexpr int kMinimumHeight = 4890;

}  // namespace

StoredPlace MainWindow::compilePlace() {
    return {settings_.CompileWindowLeft, settings_.CompileWindowTop, settings_.CompileWindowWidth,
            settings_.CompileWindowHeight};
}

CompileDialog* MainWindow::compileDialog() {
    if (compileDialog_ != nullptr) return compileDialog_;
    compileDialog_ = new CompileDialog(flags_, settings_.Colours[kCommentColour]);
    compileFrame_ = area_->addSubWindow(compileDialog_);
    compileFrame_->setObjectName(QStringLiteral("frmCompileFrame"));
    compileFrame_->setWindowIcon(windowIcon());
    compileFrame_->setMinimumSize(pixelsOfTwips(kMinimumWidth), pixelsOfTwips(kMinimumHeight));
    const QRect place = compilePlace().inPixels();
    compileFrame_->setGeometry(place.x(), place.y(),
                               std::max(place.width(), pixelsOfTwips(kMinimumWidth)),
                               std::max(place.height(), pixelsOfTwips(kMinimumHeight)));
    compileFrame_->installEventFilter(this);
    connect(compileDialog_, &CompileDialog::startRequested, this, &MainWindow::startCompile);
    connect(compileDialog_, &CompileDialog::abortRequested, this, &MainWindow::abortCompile);
    connect(compileDialog_, &CompileDialog::closeRequested, this, &MainWindow::hideCompileDialog);
    connect(compileDialog_, &CompileDialog::helpRequested, this,
            [this](int) { showHelpFor("frmCompile"); });
    return compileDialog_;
}

void MainWindow::showCompileDialog() {
    CompileDialog* dialog = compileDialog();
    dialog->setCommentColour(settings_.Colours[kCommentColour]);
    compileFrame_->showNormal();
    compileFrame_->raise();
    area_->setActiveSubWindow(compileFrame_);
    dialog->setFocus();
}

// Hidden, not closed: the check boxes keep what the user chose.
void MainWindow::hideCompileDialog() {
    if (compileFrame_ == nullptr) return;
    compileFrame_->hide();
    refreshCommands();
}

void MainWindow::storeCompilePlace() {
    if (compileFrame_ == nullptr || compileFrame_->isMinimized()) return;
    compilePlace().keep(compileFrame_->geometry());
}

void MainWindow::compileActiveWindow() {
    EditorDocument* document = documentOf(area_->currentSubWindow());
    if (document == nullptr || document->editor() == nullptr || compiling_) return;
    if (!compileHost_) compileHost_ = std::make_unique<CompileHost>(*this);
    // The text without its bookmarks, saved or not; no file of the user is written.
    const auto source =
        decideCompileSource(toUtf8(document->caption()), document->text(), *compileHost_);
    if (!source) return;

    removeCompileFolder();
    compileFolder_ = makePrivateTemporaryFolder();
    if (compileFolder_.empty()) {
        host_.messageBox(std::string(kMainCaption),
                         text8("Kein Ordner für temporäre Dateien: es wird nicht compiliert."),
                         MessageButtons::Ok, MessageIcon::Critical);
        return;
    }
    if (!writeCompileSource(source->text, compileFolder_, *compileHost_)) {
        removeCompileFolder();
        return;
    }
    const std::string name = fromUtf8(source->name);
    compileDialog()->prepare(name);
    showCompileDialog();
    // The listing's folder follows what was compiled.
    settings_.listingFolder = folderOf(name);
}

void MainWindow::startCompile() {
    CompileDialog* dialog = compileDialog();
    if (compiling_ || compileFolder_.empty()) return;
    if (!assembler_) {
        AssemblerSettings run;
        run.programFolder = programFolder_;
        assembler_ = std::make_unique<Assembler>(*compileHost_, run);
    }
    compiling_ = true;
    setWaitCursor(true);
    menuBar()->setEnabled(false);
    toolbar_->setEnabled(false);
    dialog->beginRun();
    assembler_->clearAbort();
    runCompile(*assembler_, settings_, toUtf8(dialog->sourceName()), dialog->switches(),
               compileFolder_);
    dialog->endRun();
    removeCompileFolder();
    menuBar()->setEnabled(true);
    toolbar_->setEnabled(true);
    setWaitCursor(false);
    compiling_ = false;
}

void MainWindow::abortCompile() {
    if (!compiling_ || !assembler_) return;
    assembler_->requestAbort();
    compileDialog_->noteAborted();
    setWaitCursor(false);
}

void MainWindow::showLastReport() {
    const std::string report = assembler_ ? assembler_->state().reportText : std::string();
    if (report.empty()) {
        host_.messageBox(std::string(kMainCaption), "Kein Statusbericht vorhanden.",
                         MessageButtons::Ok, MessageIcon::Information);
        return;
    }
    CompileDialog* dialog = compileDialog();
    dialog->setCommentColour(settings_.Colours[kCommentColour]);
    dialog->showLastReport(report);
    showCompileDialog();
}

void MainWindow::removeCompileFolder() {
    if (compileFolder_.empty()) return;
    std::error_code ignored;
    std::filesystem::remove_all(compileFolder_, ignored);
    compileFolder_.clear();
}

}  // namespace korvex::gui
