// The commands of frmMDI by name. A command without a handler here belongs
// to a window that isn't built yet, and says so.

#include <QDateTime>
#include <QFontDialog>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextEdit>

#include "base/cp1252.h"
#include "gui/command_menus.h"
#include "gui/controller_dialog.h"
#include "gui/extensions_dialog.h"
#include "gui/find_dialog.h"
#include "gui/insert_line_dialog.h"
#include "gui/label_finder_dialog.h"
#include "gui/listing_window.h"
#include "gui/main_window.h"
#include "gui/notes_window.h"
#include "gui/pastime_windows.h"
#include "gui/qt_text.h"
#include "gui/reference_window.h"
#include "gui/setup_dialog.h"
#include "gui/window_arrangement.h"
#include "workbench/block_edit.h"
#include "workbench/captions.h"
#include "workbench/colours.h"
#include "workbench/controller_choice.h"
#include "workbench/label_finder.h"

namespace korvex::gui {

void MainWindow::registerCommands() {
    auto onText = [this](auto act) {
        return [this, act] {
            if (EditorWindow* editor = activeEditor()) act(editor);
        };
    };
    handlers_ = {
        {"mnuFNew", [this] { commands_.NewDocument(); }},
        {"mnuFOpen", [this] { commands_.OpenSourceDialog(); }},
        {"mnuFSave", [this] { commands_.SaveDocument(); }},
        {"mnuFSaveAs", [this] { commands_.SaveDocumentAs(); }},
        {"mnuFClose",
         [this] {
             if (QMdiSubWindow* frame = area_->currentSubWindow()) frame->close();
         }},
        {"MnFDrucken", [this] { print(); }},
        {"MnuDrucken", [this] { print(); }},
        {"mnuFExit", [this] { close(); }},
        {"mnuECut",
         [this] {
             if (QTextEdit* text = activeTextEdit()) text->cut();
         }},
        {"mnuECopy",
         [this] {
             if (QTextEdit* text = activeTextEdit()) text->copy();
         }},
        {"mnuEPaste",
         [this] {
             if (QTextEdit* text = activeTextEdit()) text->paste();
         }},
        {"mnuEDelete",
         [this] {
             if (EditorWindow* editor = activeEditor())
                 editor->deleteSelection();
             else if (QTextEdit* text = activeTextEdit())
                 text->textCursor().removeSelectedText();
         }},
        {"mnuESelectAll",
         [this] {
             if (QTextEdit* text = activeTextEdit()) text->selectAll();
         }},
        {"mnuEGoto", onText([](EditorWindow* e) { e->goToLine(); })},
        {"mnuEKomment", onText([](EditorWindow* e) { e->blockEdit(true, kCommentSymbol); })},
        {"mnuEentKomment", onText([](EditorWindow* e) { e->blockEdit(false, kCommentSymbol); })},
        {"mnuEInsertTab", onText([](EditorWindow* e) { e->blockEdit(true, kIndentSymbol); })},
        {"mnuEDelTab", onText([](EditorWindow* e) { e->blockEdit(false, kIndentSymbol); })},
        {"mnuELesezeichenEntfernen", onText([](EditorWindow* e) { e->removeBookmarks(); })},
        {"mnuLOpen", [this] { openListing(); }},
        {"MnuHexDump", [this] { openByteFile(true); }},
        {"MnBinDump", [this] { openByteFile(false); }},
        {"MnuBinDump", [this] { openByteFile(false); }},
        {"MnCPUeinsehen", [this] { showCpuFile(); }},
        {"MnDateivergleich", [this] { openFileComparison(); }},
        {"mnuELabelListe", [this] { findLabel(); }},
        {"MnHelpHilfe", [this] { showHelpFor("MnHelpHilfe"); }},
        {"MnHelpBefehlssatz", [this] { showReference(); }},
        {"MnHelpKalender", [this] { makeCalendarWindow(this)->show(); }},
        {"MnSpiel",
         [this] {
             (new PuzzleWindow(static_cast<std::uint32_t>(QDateTime::currentMSecsSinceEpoch()),
                               this))
                 ->show();
         }},
        {"MnHelpVersion",
         [this] {
             AboutDialog about(this);
             about.exec();
         }},
        {"MnuController", [this] { chooseController(); }},
        {"mnuWNotiz", [this] { showNotes(); }},
        {"MnInclude", [this] { showInsertDialog(true); }},
        {"MnMain", [this] { showInsertDialog(false); }},
        {"mnuSFind", [this] { openFindDialog(false); }},
        {"mnuSReplace", [this] { openFindDialog(true); }},
        {"mnuSFindNext", [this] { findNext(); }},
        {"MnCompComp", [this] { compileActiveWindow(); }},
        {"MnCompStatus", [this] { showLastReport(); }},
        {"MnCompDisass", [this] { disassemble(); }},
        {"mnuDisasKonfig", [this] { configureDisassembler(); }},
        {"mnuOExtensions", [this] { editExtensions(); }},
        {"mnuOToolbar", [this] { editSetup(); }},
        {"mnuFont", [this] { chooseFont(); }},
        {"mnuWleft", [this] { gui::placeInHalf(area_, area_->currentSubWindow(), false); }},
        {"mnuWRight", [this] { gui::placeInHalf(area_, area_->currentSubWindow(), true); }},
        {"mnuWCascade", [this] { cascade(area_); }},
        {"mnuWTile", [this] { tileOneUnderAnother(area_); }},
        {"mnuWArrange", [this] { arrangeIcons(area_); }},
    };
    registerHelpCommands();
    registerWizardCommands();
    registerPinCommands();
}

QTextEdit* MainWindow::activeTextEdit() const {
    if (EditorWindow* editor = activeEditor()) return editor->textEdit();
    QMdiSubWindow* frame = area_->currentSubWindow();
    auto* listing = frame != nullptr ? qobject_cast<ListingWindow*>(frame->widget()) : nullptr;
    return listing != nullptr ? listing->textEdit() : nullptr;
}

TextControl* MainWindow::activeTextControl() const {
    if (EditorWindow* editor = activeEditor()) return &editor->textControl();
    QMdiSubWindow* frame = area_->currentSubWindow();
    auto* listing = frame != nullptr ? qobject_cast<ListingWindow*>(frame->widget()) : nullptr;
    return listing != nullptr ? &listing->textControl() : nullptr;
}

void MainWindow::openFindDialog(bool replacing) {
    TextControl* text = activeTextControl();
    if (text == nullptr) return;
    if (findDialog_ == nullptr) {
        findDialog_ = new FindDialog(
            findState_, find_, [this] { return activeTextControl(); },
            [this] {
                if (QTextEdit* active = activeTextEdit()) active->setFocus();
            },
            this);
    }
    findDialog_->openOn(korvex::openFindDialog(findState_, *text));
    if (replacing) findDialog_->setReplacing(true);
}

void MainWindow::findNext() {
    TextControl* text = activeTextControl();
    if (text == nullptr) return;
    const bool selectionOnly = findDialog_ != nullptr ? findDialog_->boxes().selectionOnly
                                                      : findState_.FindSelectChecked != 0;
    FindOutcome outcome;
    if (!find_.FindNext(*text, selectionOnly, &outcome)) {
        openFindDialog(false);
        return;
    }
    if (outcome.backToStart && findDialog_ == nullptr) activeTextEdit()->setFocus();
}

// The help commands that show a page; their topics are the help's contract.
void MainWindow::registerHelpCommands() {
    for (const char* name : {"MnHelpAIFStrukturen",
                             "MnHelpAForStrukturen",
                             "MnHelpALoopStrukturen",
                             "MnHelpABefehlssyntax",
                             "MnHelpAZahlen",
                             "MnHelpABerechnungen",
                             "MnHelpAVariablen",
                             "MnHelpAExclude",
                             "MnHelpALabel",
                             "MnHelpATabellen",
                             "MnHelpCPUanweisung",
                             "MnHelpAUse",
                             "MnHelpAAdresszuweisung",
                             "MnHelpAMakro",
                             "MnHelpAIncludedatei",
                             "MnHelpAPartof",
                             "MnHelpSFR",
                             "MnHelpSFRBit",
                             "MnHelpInterrupt",
                             "MnHelpReset",
                             "MnHelpANSI",
                             "MnHelpCopyright",
                             "MnHelpRechner"})
        handlers_.insert(QString::fromLatin1(name), [this, name] { showHelpFor(name); });
}

void MainWindow::runCommand(const QString& name) {
    // While a run works, only the compile dialog's button is live.
    if (compiling_) return;
    if (const auto handler = handlers_.constFind(name); handler != handlers_.constEnd()) {
        (*handler)();
    } else {
        notAvailable(name);
    }
}

void MainWindow::notAvailable(const QString& name) {
    host_.messageBox(std::string(kMainCaption),
                     toCp1252(QStringLiteral("„%1“ ist in dieser Version noch nicht verfügbar.")
                                  .arg(menus_->plainCaption(name))),
                     MessageButtons::Ok, MessageIcon::Information);
}

void MainWindow::print() {
    if (QTextEdit* text = activeTextEdit()) printText(text);
}

void MainWindow::printText(QTextEdit* text) {
    QPrinter printer;
    QPrintDialog dialog(&printer, this);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, text->textCursor().hasSelection());
    if (dialog.exec() != QDialog::Accepted) return;
    if (printer.printRange() == QPrinter::Selection && text->textCursor().hasSelection()) {
        QTextDocument selection;
        selection.setDefaultFont(text->document()->defaultFont());
        QTextCursor(&selection).insertFragment(text->textCursor().selection());
        selection.print(&printer);
    } else {
        text->print(&printer);
    }
}

void MainWindow::findLabel() {
    EditorWindow* editor = activeEditor();
    if (editor == nullptr) return;
    TextControl& box = editor->textControl();
    LabelFinderDialog dialog(CollectLabels(box.Text()), labelSortState_,
                             settings_.Colours[kHexBorder], settings_.Colours[kHexContent], this);
    if (labelFinderPlace_) dialog.move(*labelFinderPlace_);
    dialog.exec();
    labelFinderPlace_ = dialog.pos();
    if (dialog.chosen().empty()) return;  // closed without a choice
    const std::int32_t at = LabelPosition(box.Text(), dialog.chosen());
    if (at < 0) return;
    // To the end first, so that the line comes to the top of the view.
    box.SetSelStart(box.TextLength());
    box.SetSelStart(at);
    editor->textEdit()->ensureCursorVisible();
}

void MainWindow::showReference() {
    if (reference_ != nullptr) {
        reference_->raise();
        reference_->activateWindow();
        return;
    }
    reference_ = new ReferenceWindow(
        settings_.ReferenceWindowTab, [this](const std::string& word) { showHelpForWord(word); },
        this);
    connect(reference_, &ReferenceWindow::closing, this, [this](const QPoint& place, int tab) {
        settings_.ReferenceWindowLeft = place.x() * 15;
        settings_.ReferenceWindowTop = place.y() * 15;
        settings_.ReferenceWindowTab = static_cast<std::int16_t>(tab);
    });
    reference_->move(settings_.ReferenceWindowLeft / 15, settings_.ReferenceWindowTop / 15);
    reference_->show();
}

void MainWindow::chooseController() {
    const std::vector<std::string> controllers = AvailableControllers(programFolder_);
    if (controllers.empty()) {
        host_.messageBox(std::string(kMainCaption),
                         "Keine CPU-Datei im Programmverzeichnis vorhanden.", MessageButtons::Ok,
                         MessageIcon::None);
        return;
    }
    ControllerDialog dialog(controllers, settings_.ControllerName,
                            settings_.Colours[kComparisonBackground], this);
    if (dialog.exec() != QDialog::Accepted) return;
    settings_.ControllerName = dialog.chosen();
    controllerLabel_->setText(fromCp1252(settings_.ControllerName));
}

void MainWindow::showNotes() {
    if (notes_ == nullptr)
        notes_ = new NotesWindow(
            settings_, [this](QTextEdit* text) { printText(text); }, this);
    notes_->showNotes();
}

void MainWindow::showInsertDialog(bool include) {
    InsertLineDialog::Services services;
    services.chooseFile = [this](const std::string& title) {
        FileDialogRequest request;
        request.title = title;
        request.folder = settings_.sourceFolder;
        request.filter = "Programmdateien (*.a51)|*.a51|Alle Dateien (*.*)|*.*";
        return dialogs_.openFileName(request);
    };
    services.pasteAtCaret = [this] {
        if (EditorWindow* editor = activeEditor()) editor->textEdit()->paste();
    };
    services.help = [this, include] { showHelpForWord(include ? "#INCLUDE" : "#PART"); };
    auto* dialog = new InsertLineDialog(
        include ? InsertLineDialog::Kind::Include : InsertLineDialog::Kind::PartOf,
        std::move(services), this);
    dialog->show();
}

void MainWindow::chooseFont() {
    EditorWindow* editor = activeEditor();
    QFont initial(fromCp1252(settings_.EditorFontName), settings_.EditorFontSize,
                  settings_.EditorFontBold ? QFont::Bold : QFont::Normal,
                  settings_.EditorFontItalic);
    bool ok = false;
    const QFont font = QFontDialog::getFont(&ok, initial, this);
    if (!ok) return;
    settings_.EditorFontName = toCp1252(font.family());
    settings_.EditorFontSize = static_cast<std::int16_t>(std::clamp(font.pointSize(), 1, 32767));
    settings_.EditorFontBold = font.bold();
    settings_.EditorFontItalic = font.italic();
    // Only the active window takes the font now; others when they are formatted.
    if (editor != nullptr) {
        editor->applySettings(settings_);
        editor->formatDocumentText();
    }
}

void MainWindow::editExtensions() {
    ExtensionsDialog dialog(settings_, host_, this);
    dialog.setHelp([this] { showHelpFor("frmEndungen"); });
    dialog.exec();
}

void MainWindow::editSetup() {
    SetupDialog dialog(settings_, host_, *toolbar_, this);
    dialog.setHelp([this] { showHelpFor("FrmSetup"); });
    connect(&dialog, &SetupDialog::coloursChanged, this, &MainWindow::showColours);
    connect(&dialog, &SetupDialog::applied, this, &MainWindow::settingsApplied);
    dialog.exec();
}

}  // namespace korvex::gui
