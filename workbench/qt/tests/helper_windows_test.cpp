// The editor's helpers: the label finder with its lasting sort, the notes
// with their one undo, and the lines that the insert dialogs write.

#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QPushButton>
#include <QSvgRenderer>
#include <QSvgWidget>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextBrowser>
#include <QTimer>
#include <filesystem>

#include "base/cp1252.h"
#include "gui/help_window.h"
#include "gui/insert_line_dialog.h"
#include "gui/label_finder_dialog.h"
#include "gui/notes_window.h"
#include "gui/pastime_windows.h"
#include "gui/reference_window.h"
#include "main_window_fixture.h"

namespace korvex::gui {
namespace {

// Runs `act` on the label finder once it is open, then lets the command go on.
void onLabelFinder(const std::function<void(LabelFinderDialog&)>& act) {
    QTimer::singleShot(0, [act] {
        auto* dialog = qobject_cast<LabelFinderDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
    });
}

QStringList column(const LabelFinderDialog& dialog, int which) {
    QStringList texts;
    for (int row = 0; row < dialog.grid()->rowCount(); ++row)
        texts << dialog.grid()->item(row, which)->text();
    return texts;
}

TEST(HelperWindows, TheLabelFinderJumpsAndKeepsItsSortAcrossOpenings) {
    Bench bench;
    const std::string text = "zurueck:\r\n\tnop\r\nanfang: ; los\r\n\tsjmp zurueck\r\n";
    bench.window.activeEditor()->setSourceText(text);
    onLabelFinder([](LabelFinderDialog& dialog) {
        // The first opening sorts by label.
        EXPECT_EQ(column(dialog, 1), (QStringList{"anfang: ; los", "zurueck:"}));
        EXPECT_EQ(dialog.findChild<QAction*>(QStringLiteral("MnSort"))->text(),
                  QStringLiteral("Res&ortieren"));
        dialog.grid()->selectRow(0);
        dialog.findChild<QPushButton*>(QStringLiteral("LFCmd1"))->click();
    });
    bench.trigger("mnuELabelListe");
    EXPECT_EQ(bench.window.activeEditor()->textControl().SelStart(), 16);

    onLabelFinder([](LabelFinderDialog& dialog) {
        dialog.findChild<QAction*>(QStringLiteral("MnSort"))
            ->trigger();  // back to the text's order
        EXPECT_EQ(column(dialog, 0), (QStringList{"1", "2"}));
        dialog.findChild<QPushButton*>(QStringLiteral("LFCmd2"))->click();
    });
    bench.trigger("mnuELabelListe");
    EXPECT_EQ(bench.window.activeEditor()->textControl().SelStart(), 16);  // ESC: no jump
    onLabelFinder([](LabelFinderDialog& dialog) {
        EXPECT_EQ(column(dialog, 1), (QStringList{"zurueck:", "anfang: ; los"}));
        EXPECT_EQ(dialog.findChild<QAction*>(QStringLiteral("MnSort"))->text(),
                  QStringLiteral("S&ortieren"));
        dialog.reject();
    });
    bench.trigger("mnuELabelListe");
}

TEST(HelperWindows, NotesUndoOnceAndOutliveTheirWindow) {
    Bench bench;
    bench.trigger("mnuWNotiz");
    auto* notes = bench.window.findChild<NotesWindow*>(QStringLiteral("NotizFrm"));
    ASSERT_NE(notes, nullptr);
    EXPECT_EQ(notes->windowTitle(), QStringLiteral("Notizen"));
    EXPECT_FALSE(notes->button(1)->isEnabled());
    EXPECT_FALSE(notes->button(7)->isEnabled());
    notes->text()->setPlainText(QStringLiteral("Port 1 prüfen"));
    notes->text()->selectAll();
    EXPECT_TRUE(notes->button(2)->isEnabled());
    notes->button(2)->trigger();  // delete the selection
    EXPECT_EQ(notes->text()->toPlainText(), QString());
    notes->button(5)->trigger();
    EXPECT_EQ(notes->text()->toPlainText(), QStringLiteral("Port 1 prüfen"));
    EXPECT_EQ(notes->text()->textCursor().selectedText(), QStringLiteral("Port 1 prüfen"));
    notes->button(10)->trigger();
    EXPECT_FALSE(notes->isVisible());
    bench.trigger("mnuWNotiz");
    EXPECT_TRUE(notes->isVisible());
    EXPECT_EQ(notes->text()->toPlainText(), QStringLiteral("Port 1 prüfen"));
}

TEST(HelperWindows, InsertDialogsWriteTheLineAtTheCaret) {
    Bench bench;
    bench.window.activeEditor()->setSourceText("nop\r\n");
    bench.trigger("MnInclude");
    auto* dialog = bench.window.findChild<InsertLineDialog*>(QStringLiteral("IncludeFrm"));
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->line()->text(), QStringLiteral("#Include"));
    bench.dialogs.answers = {"/tmp/teil.a51"};
    dialog->findChild<QPushButton*>(QStringLiteral("Command1"))->click();
    EXPECT_EQ(bench.dialogs.requests.back().title, text8("Include-Datei öffnen"));
    EXPECT_EQ(dialog->line()->text(), QStringLiteral("#Include '/tmp/teil.a51'"));
    dialog->findChild<QPushButton*>(QStringLiteral("Command1"))->click();  // cancelled
    EXPECT_EQ(dialog->line()->text(), QStringLiteral("#Include '/tmp/teil.a51'"));
    dialog->findChild<QPushButton*>(QStringLiteral("Command3"))->click();
    EXPECT_EQ(bench.window.openWindowText("Unbenannt 1"), "#Include '/tmp/teil.a51'nop\r\n");

    bench.trigger("MnMain");
    auto* project = bench.window.findChild<InsertLineDialog*>(QStringLiteral("Partoffrm"));
    ASSERT_NE(project, nullptr);
    EXPECT_EQ(project->windowTitle(), QStringLiteral("Projektdatei einfügen"));
    EXPECT_EQ(project->line()->text(), QStringLiteral("#Part of "));
}

TEST(HelperWindows, F1AndTheHelpMenuShowTheirPages) {
    Bench bench;
    std::filesystem::copy(KORVEX_HELP_DIR, bench.folder.path() + "help",
                          std::filesystem::copy_options::recursive);
    bench.window.activeEditor()->setSourceText("\tmov a,#1\r\n");
    bench.window.activeEditor()->textControl().SetSelStart(3);  // inside "mov"
    QApplication::setActiveWindow(&bench.window);
    bench.text()->setFocus();
    QTest::keyClick(bench.text(), Qt::Key_F1);
    auto* help = bench.window.findChild<HelpWindow*>(QStringLiteral("frmHilfe"));
    ASSERT_NE(help, nullptr);
    EXPECT_TRUE(
        help->browser()->source().toLocalFile().endsWith(QStringLiteral("korvex/1310.html")));
    EXPECT_TRUE(help->browser()->toPlainText().contains(QStringLiteral("MOV – Daten übertragen")));

    // The register help follows the controller.
    bench.window.settings().ControllerName = "80C552";
    bench.trigger("MnHelpInterrupt");
    EXPECT_TRUE(
        help->browser()->source().toLocalFile().endsWith(QStringLiteral("552sfr/120.html")));
    EXPECT_TRUE(help->browser()->toPlainText().contains(QStringLiteral("SIO1")));
    bench.trigger("MnPinsC515");
    auto* pins = bench.window.findChild<QSvgWidget*>(QStringLiteral("frmPins"));
    ASSERT_NE(pins, nullptr);
    EXPECT_EQ(pins->windowTitle(), QStringLiteral("Anschlussbelegung C515 (=80C515 Infineon)"));
    EXPECT_EQ(pins->size(), pins->renderer()->defaultSize());
    EXPECT_GT(pins->width(), 300);
    bench.trigger("MnHelpHilfe");
    EXPECT_TRUE(
        help->browser()->toPlainText().contains(QStringLiteral("Der Befehlssatz des 8051")));
    EXPECT_TRUE(bench.host.boxes.empty());
}

TEST(HelperWindows, TheReferenceKeepsItsTabAndThePastimesOpen) {
    Bench bench;
    bench.trigger("MnHelpBefehlssatz");
    auto* reference = bench.window.findChild<ReferenceWindow*>(QStringLiteral("frmBefehle"));
    ASSERT_NE(reference, nullptr);
    auto* arithmetic = qobject_cast<QTableWidget*>(reference->tabs()->widget(0));
    EXPECT_EQ(arithmetic->item(0, 0)->text(), QStringLiteral("INC A"));
    // Every one of the 255 opcodes stands in some row.
    int rows = 0;
    for (int tab = 0; tab < reference->tabs()->count(); ++tab)
        rows += qobject_cast<QTableWidget*>(reference->tabs()->widget(tab))->rowCount();
    EXPECT_GT(rows, 100);
    reference->tabs()->setCurrentIndex(4);
    reference->close();
    Bench::settle();
    EXPECT_EQ(bench.window.settings().ReferenceWindowTab, 4);
    bench.trigger("MnHelpBefehlssatz");
    reference = bench.window.findChild<ReferenceWindow*>(QStringLiteral("frmBefehle"));
    ASSERT_NE(reference, nullptr);
    EXPECT_EQ(reference->tabs()->currentIndex(), 4);

    bench.trigger("MnSpiel");
    auto* puzzle = bench.window.findChild<PuzzleWindow*>(QStringLiteral("frmSpiel"));
    ASSERT_NE(puzzle, nullptr);
    EXPECT_FALSE(puzzle->puzzle().solved());
    bench.trigger("MnHelpKalender");
    EXPECT_NE(bench.window.findChild<QWidget*>(QStringLiteral("frmKalender")), nullptr);
    QTimer::singleShot(0, [] {
        QWidget* about = QApplication::activeModalWidget();
        ASSERT_NE(about, nullptr);
        EXPECT_EQ(about->windowTitle(), QStringLiteral("Info"));
        about->close();
    });
    bench.trigger("MnHelpVersion");
    EXPECT_TRUE(bench.host.boxes.empty());
}

}  // namespace
}  // namespace korvex::gui
