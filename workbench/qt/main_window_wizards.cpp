// The chip wizards of the menu MnAssitenten: one window per chip for the
// whole run, made at its first use, and the little of the source windows
// that "Übernehmen" needs.

#include <QApplication>
#include <QInputDialog>

#include "base/failure.h"
#include "gui/editor_document.h"
#include "gui/main_window.h"
#include "gui/main_window_wizards.h"
#include "gui/qt_text.h"
#include "gui/wizard_window.h"
#include "wizards/core/wizard_host.h"
#include "wizards/wizard_factory.h"
#include "workbench/colours.h"

namespace korvex::gui {

void MainWindow::registerWizardCommands() {
    static const std::pair<const char*, const char*> kEntries[] = {
        {"MnAssist51", "51"},      {"MnAssist52", "52"},     {"MnAssist320", "320"},
        {"MnAssistAT89", "89S53"}, {"MnAssist8253", "8253"}, {"MnAssist4052", "4052"},
        {"MnAssist515", "515"},    {"MnAssist517", "517"},   {"MnAssist552", "552"},
    };
    for (const auto& [command, chip] : kEntries) {
        handlers_.insert(QString::fromLatin1(command), [this, chip = chip] { openWizard(chip); });
    }
}

void MainWindow::openWizard(const std::string& chip) {
    WizardWindow* window = wizardWindow(chip);
    if (window == nullptr) {
        if (!wizardEditors_) wizardEditors_ = std::make_unique<WizardEditors>(*this);
        auto seat = std::make_unique<WizardSeat>();
        seat->host = std::make_unique<wizards::HostWizardHost>(
            host_,
            [this](const std::string& title, const std::string& text, const std::string& offered) {
                return askWizardInput(title, text, offered);
            });
        wizards::WizardOptions options;
        options.commentColour = static_cast<std::uint32_t>(settings_.Colours[kCommentColour]);
        options.programFolder = programFolder_;
        if (!options.programFolder.empty() && options.programFolder.back() != '/') {
            options.programFolder += '/';
        }
        options.now = wizardClock_;
        seat->wizard = wizards::makeWizard(chip, *seat->host, options);
        if (!seat->wizard) return;
        seat->window = new WizardWindow(chip, *seat->wizard, *seat->host, *wizardEditors_, this);
        window = seat->window;
        wizards_[chip] = std::move(seat);
    }
    window->open();
}

WizardWindow* MainWindow::wizardWindow(const std::string& chip) const {
    const auto seat = wizards_.find(chip);
    return seat != wizards_.end() ? seat->second->window : nullptr;
}

std::string MainWindow::askWizardInput(const std::string& title, const std::string& text,
                                       const std::string& offered) {
    if (prompt_) return prompt_(title, text, offered);
    bool ok = false;
    const QString answer =
        QInputDialog::getText(QApplication::activeWindow(), fromCp1252(title), fromCp1252(text),
                              QLineEdit::Normal, fromCp1252(offered), &ok);
    return ok ? toCp1252(answer) : std::string();
}

void MainWindow::closeWizards() {
    // The windows listen to the records: they go first.
    for (auto& [chip, seat] : wizards_) delete seat->window;
    wizards_.clear();
}

}  // namespace korvex::gui
