// The main window through its real actions, keys and object names.

#include <gtest/gtest.h>

#include <QLabel>
#include <QMenu>

#include "base/cp1252.h"
#include "base/files.h"
#include "gui/command_table.h"
#include "main_window_fixture.h"
#include "workbench/help_topics.h"
#include "workbench/settings_file.h"
#include "workbench/text_control.h"

namespace korvex::gui {
namespace {

TEST(MainWindow, AFirstStartAsksRunsOnDefaultsAndTheEndWritesTheSettings) {
    testing::ScratchFolder folder;
    ScriptedHost host({MessageAnswer::No});
    ScriptedDialogs dialogs;
    MemoryUserSettingsStore store;
    {
        MainWindow refused(folder.path(), {host, dialogs, store});
        EXPECT_FALSE(refused.start(""));
        ASSERT_EQ(host.boxes.size(), 1u);
        EXPECT_EQ(host.boxes[0].title, "Fehler");
    }
    Bench bench;
    ASSERT_TRUE(bench.started);
    EXPECT_EQ(bench.caption(), QStringLiteral("Unbenannt 1"));
    EXPECT_EQ(bench.window.findChild<QLabel*>(QStringLiteral("Label1"))->text(), "8032");
    bench.window.settings().toolbar.align = 2;
    bench.window.toolbar()->applyState({2, false, true});
    EXPECT_TRUE(bench.window.close());
    const SettingsReadResult written = readSettingsFile(bench.folder.path());
    EXPECT_FALSE(written.failure);
    EXPECT_EQ(written.settings.toolbar, (ToolbarState{2, false, true}));
}

TEST(MainWindow, NewWindowsAreNumberedBySlotAndReuseAClosedOnesNumber) {
    Bench bench;
    bench.trigger("mnuFNew");
    EXPECT_EQ(bench.caption(), QStringLiteral("Unbenannt 2"));
    bench.button(1)->trigger();  // TbrNeu
    EXPECT_EQ(bench.caption(), QStringLiteral("Unbenannt 3"));

    QMdiSubWindow* second = bench.window.area()->subWindowList()[1];
    bench.window.area()->setActiveSubWindow(second);
    bench.trigger("mnuFClose");
    Bench::settle();
    EXPECT_EQ(bench.windows(), 2);
    bench.trigger("mnuFNew");
    EXPECT_EQ(bench.caption(), QStringLiteral("Unbenannt 2"));
}

TEST(MainWindow, OpensAndSavesWithTheBackupAndListsTheFileAsRecent) {
    Bench bench;
    const std::string name = bench.folder.write("prog.a51", "alt\r\n");
    bench.dialogs.answers = {name};
    bench.button(2)->trigger();  // TbrOpenCode
    EXPECT_EQ(bench.caption(), fromCp1252(name));
    EXPECT_EQ(bench.windows(), 1);  // the empty "Unbenannt 1" took the file

    bench.text()->moveCursor(QTextCursor::End);
    QTest::keyClicks(bench.text(), "nop");
    bench.trigger("mnuFSave");
    EXPECT_EQ(bench.folder.read("prog.a51"), "alt\r\nnop");
    EXPECT_EQ(bench.folder.read("prog.sik51"), "alt\r\n");

    QAction* recent = bench.window.menus()
                          ->action(QStringLiteral("mnuFile"))
                          ->menu()
                          ->findChild<QAction*>(QStringLiteral("mnuRecentFile(1)"));
    ASSERT_NE(recent, nullptr);
    EXPECT_TRUE(recent->isVisible());
    EXPECT_EQ(recent->text(), fromCp1252(name));
    bench.trigger("mnuFNew");
    recent->trigger();
    EXPECT_EQ(bench.caption(), fromCp1252(name));  // the open window, activated
    EXPECT_EQ(bench.windows(), 2);
}

TEST(MainWindow, ClosingADirtyWindowAsksAndCancelKeepsItOpen) {
    Bench bench;
    QTest::keyClicks(bench.text(), "mov a,#1");
    bench.host = ScriptedHost({MessageAnswer::Cancel, MessageAnswer::Cancel});
    bench.trigger("mnuFClose");
    Bench::settle();
    ASSERT_EQ(bench.host.boxes.size(), 1u);
    EXPECT_EQ(bench.host.boxes[0].text,
              text8("Der Text in \"Unbenannt 1\" wurde geändert.\r\n\r\nÄnderungen speichern?"));
    EXPECT_EQ(bench.windows(), 1);

    EXPECT_FALSE(bench.window.close());  // Cancel stops the end of the program too
    bench.host = ScriptedHost({MessageAnswer::No});
    bench.trigger("mnuFClose");
    Bench::settle();
    EXPECT_EQ(bench.windows(), 0);
    EXPECT_EQ(bench.window.documents().ActiveDocument, 0);
}

TEST(MainWindow, TheToolbarAndTheMenusFollowTheActiveWindow) {
    Bench bench;
    for (int position = 1; position <= kToolbarPositions; ++position)
        EXPECT_TRUE(bench.button(position)->isVisible()) << position;
    EXPECT_TRUE(bench.window.menus()->action(QStringLiteral("mnuFSave"))->isVisible());
    EXPECT_FALSE(bench.window.menus()->action(QStringLiteral("MnuBinDump"))->isVisible());
    EXPECT_FALSE(bench.button(8)->isEnabled());  // cut waits for a selection
    QTest::keyClicks(bench.text(), "nop");
    bench.text()->selectAll();
    EXPECT_TRUE(bench.button(8)->isEnabled());
    EXPECT_TRUE(bench.window.menus()->action(QStringLiteral("mnuEDelete"))->isEnabled());

    bench.host = ScriptedHost({MessageAnswer::No});
    bench.trigger("mnuFClose");
    Bench::settle();
    for (int position = 1; position <= kToolbarPositions; ++position)
        EXPECT_EQ(bench.button(position)->isVisible(), position < 6) << position;
    EXPECT_FALSE(bench.window.menus()->action(QStringLiteral("mnuFSave"))->isVisible());
    EXPECT_FALSE(bench.window.menus()->action(QStringLiteral("mnuEdit"))->isVisible());
    EXPECT_FALSE(bench.window.menus()->action(QStringLiteral("mnEdit"))->isVisible());
    EXPECT_TRUE(bench.window.menus()->action(QStringLiteral("MnuBinDump"))->isVisible());

    bench.trigger("mnuFNew");
    EXPECT_TRUE(bench.button(21)->isVisible());
}

TEST(MainWindow, CommandsOfLaterWindowsSayInGermanThatTheyArentThereYet) {
    Bench bench;
    bench.trigger("MnPins80c552");  // the picture isn't in the program folder
    ASSERT_EQ(bench.host.boxes.size(), 1u);
    EXPECT_EQ(bench.host.boxes[0].text, "80c552.svg-Datei nicht gefunden.");
    QTest::mouseClick(bench.window.findChild<QLabel*>(QStringLiteral("Label1")), Qt::LeftButton);
    ASSERT_EQ(bench.host.boxes.size(), 2u);
    EXPECT_EQ(bench.host.boxes[1].text, "Keine CPU-Datei im Programmverzeichnis vorhanden.");
}

TEST(MainWindow, KeysReachTheirCommandsAndCtrlF4DoesntCloseTheWindow) {
    Bench bench;
    QApplication::setActiveWindow(&bench.window);
    bench.text()->setFocus();
    QTest::keyClick(bench.text(), Qt::Key_F5);  // an empty text: nothing to compile
    EXPECT_TRUE(bench.host.boxes.empty());
    EXPECT_EQ(bench.window.compileDialogIfLoaded(), nullptr);
    QTest::keyClicks(bench.text(), ";nop");
    QTest::keyClick(bench.text(), Qt::Key_F4, Qt::ControlModifier);  // uncomments
    EXPECT_EQ(bench.window.openWindowText("unbenannt 1"), "nop");
    Bench::settle();
    EXPECT_EQ(bench.windows(), 1);
    QTest::keyClick(bench.text(), Qt::Key_Return);
    EXPECT_EQ(bench.window.findChild<QLabel*>(QStringLiteral("StbarZeile"))->text(),
              QStringLiteral("Zeile 2"));
    QTest::keyClick(bench.text(), Qt::Key_U, Qt::ControlModifier);
    ASSERT_EQ(bench.dialogs.requests.size(), 1u);
    EXPECT_EQ(bench.dialogs.requests[0].title, "Speichern unter");
    EXPECT_EQ(bench.dialogs.requests[0].fileName, "Unbenannt");
    EXPECT_EQ(bench.window.openWindowText("unbenannt 1"), "nop\r\n");
}

TEST(MainWindow, EveryCommandHasItsCaptionKeyAndToolTip) {
    Bench bench;
    CommandMenus& menus = *bench.window.menus();
    EXPECT_EQ(menus.action(QStringLiteral("mnuFOpen"))->text(),
              QStringLiteral("Programm ö&ffnen..."));
    EXPECT_EQ(menus.action(QStringLiteral("mnuFOpen"))->shortcut(),
              QKeySequence(QStringLiteral("Ctrl+F")));
    EXPECT_EQ(menus.action(QStringLiteral("mnuSFind"))->shortcut(),
              QKeySequence(QStringLiteral("Ctrl+S")));
    EXPECT_EQ(menus.action(QStringLiteral("MnCompComp"))->shortcut(),
              QKeySequence(QStringLiteral("F5")));
    EXPECT_EQ(menus.action(QStringLiteral("MnHelpReset"))->shortcut(),
              QKeySequence(QStringLiteral("Shift+F7")));
    EXPECT_EQ(bench.window.findChild<QAction*>(QStringLiteral("TbrCompile"))->toolTip(),
              QStringLiteral("Compilieret den Inhalt des aktuellen Fensters (F5)"));
    EXPECT_FALSE(bench.button(21)->icon().isNull());

    // What isn't built yet says so, every one of them.
    const QStringList working = {"mnuFNew",
                                 "mnuFOpen",
                                 "mnuFSave",
                                 "mnuFSaveAs",
                                 "mnuFClose",
                                 "MnFDrucken",
                                 "MnuDrucken",
                                 "mnuFExit",
                                 "mnuECut",
                                 "mnuECopy",
                                 "mnuEPaste",
                                 "mnuEDelete",
                                 "mnuEGoto",
                                 "mnuFont",
                                 "mnuWleft",
                                 "mnuEKomment",
                                 "mnuEentKomment",
                                 "mnuEInsertTab",
                                 "mnuEDelTab",
                                 "mnuWRight",
                                 "mnuWCascade",
                                 "mnuWTile",
                                 "mnuWArrange",
                                 "mnuESelectAll",
                                 "mnuELesezeichenEntfernen",
                                 "mnuOExtensions",
                                 "mnuOToolbar",
                                 "mnuLOpen",
                                 "MnuHexDump",
                                 "MnBinDump",
                                 "MnuBinDump",
                                 "MnCPUeinsehen",
                                 "MnDateivergleich",
                                 "mnuELabelListe",
                                 "MnHelpBefehlssatz",
                                 "MnHelpKalender",
                                 "MnSpiel",
                                 "MnHelpVersion",
                                 "MnuController",
                                 "mnuWNotiz",
                                 "MnInclude",
                                 "MnMain",
                                 "MnCompComp",
                                 "MnCompStatus",
                                 "mnuSFind",
                                 "mnuSReplace",
                                 "mnuSFindNext",
                                 "MnCompDisass",
                                 "mnuDisasKonfig",
                                 "MnAssist51",
                                 "MnAssist52",
                                 "MnAssist320",
                                 "MnAssistAT89",
                                 "MnAssist8253",
                                 "MnAssist4052",
                                 "MnAssist515",
                                 "MnAssist517",
                                 "MnAssist552"};
    int told = 0;
    for (const MenuRow& row : menuRows()) {
        const QString name = QString::fromLatin1(row.name != nullptr ? row.name : "");
        QAction* action = menus.action(name);
        if (name.isEmpty() || working.contains(name) || action->menu() != nullptr) continue;
        // Help pages are the help test's; the calculator would start one.
        if (name.startsWith(QLatin1String("MnHelp")) &&
            (HelpForCommand(name.toStdString(), "8032").kind != HelpRequest::Kind::Window ||
             name == QLatin1String("MnHelpRechner")))
            continue;
        bench.host.boxes.clear();
        bench.window.runCommand(name);
        ASSERT_EQ(bench.host.boxes.size(), 1u) << name.toStdString();
        EXPECT_NE(bench.host.boxes[0].text.find("nicht"), std::string::npos);
        ++told;
    }
    EXPECT_GT(told, 10);
}

}  // namespace
}  // namespace korvex::gui

namespace korvex::gui {
namespace {

TEST(MainWindow, EditingKeysThenClosingWithYesSavesTheTextWithoutBookmarks) {
    Bench bench;
    bench.window.settings().BookmarksEnabled = true;
    const std::string name = bench.folder.write("prog.a51", "start:\r\n");
    bench.dialogs.answers = {name};
    bench.trigger("mnuFOpen");
    bench.window.activeEditor()->applySettings(bench.window.settings());
    QApplication::setActiveWindow(&bench.window);
    bench.text()->setFocus();

    bench.text()->moveCursor(QTextCursor::End);
    QTest::keyClicks(bench.text(), "\tmov a,#1");
    QTest::keyClick(bench.text(), Qt::Key_Return);  // indents like the line above
    QTest::keyClicks(bench.text(), "nop");
    QTest::keyClick(bench.text(), Qt::Key_F3, Qt::ControlModifier);  // comments the line
    bench.window.activeEditor()->toggleBookmark();
    EXPECT_FALSE(bench.window.activeEditor()->textControl().PicturePositions().empty());

    bench.host = ScriptedHost({MessageAnswer::Yes});
    bench.trigger("mnuFClose");
    Bench::settle();
    ASSERT_EQ(bench.host.boxes.size(), 1u);
    EXPECT_EQ(bench.windows(), 0);
    EXPECT_EQ(bench.folder.read("prog.a51"), "start:\r\n\tmov a,#1\r\n;\tnop");
    EXPECT_FALSE(fileExists(bench.folder.path() + "prog.sik51"));  // closing writes no backup
}

}  // namespace
}  // namespace korvex::gui
