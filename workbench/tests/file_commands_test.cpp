// The life of a document without a screen: slots and captions, opening,
// saving with its backup, the close question and the recent files.

#include "workbench/file_commands.h"

#include <gtest/gtest.h>

#include "base/cp1252.h"
#include "base/files.h"
#include "document_fixture.h"
#include "workbench/captions.h"

namespace korvex {
namespace {

TEST(DocumentSlots, NewWindowsTakeTheFirstFreeSlotAndItsNumber) {
    DocumentBench bench;
    DocumentWindow* first = bench.commands.NewDocument();
    DocumentWindow* second = bench.commands.NewDocument();
    bench.commands.NewDocument();
    EXPECT_EQ(first->caption(), "Unbenannt 1");
    EXPECT_EQ(bench.documents.ActiveDocument, 3);

    bench.close(*second);
    EXPECT_EQ(bench.commands.NewDocument()->caption(), "Unbenannt 2");
    EXPECT_EQ(bench.documents.size(), 3);

    for (int slot : bench.documents.openSlots()) bench.close(*bench.documents.window(slot));
    EXPECT_EQ(bench.documents.ActiveDocument, 0);
    EXPECT_EQ(bench.commands.NewDocument()->caption(), "Unbenannt 1");
}

TEST(OpenSource, ReusesAnEmptyUntitledWindowAndActivatesAWindowAlreadyShowingTheFile) {
    DocumentBench bench;
    const std::string name = bench.folder.write("prog.a51", "mov a,#1\r\n");
    bench.commands.NewDocument();
    DocumentWindow* third = bench.commands.NewDocument();
    bench.commands.NewDocument();
    bench.workspace.focusDocumentWindow(*third);
    bench.type(*third, "   ");  // only blanks: still empty, though dirty

    EXPECT_EQ(bench.commands.OpenSource(name), third);
    EXPECT_EQ(third->caption(), name);
    EXPECT_EQ(third->text(), "mov a,#1\r\n");
    EXPECT_FALSE(bench.dirty(*third));
    EXPECT_EQ(bench.workspace.windows.size(), 3u);
    EXPECT_EQ(bench.workspace.waitCursor, 0);

    bench.commands.NewDocument();
    bench.type(bench.active(), "x");
    EXPECT_EQ(bench.commands.OpenSource(name), third);  // not loaded again
    EXPECT_EQ(&bench.active(), third);
    EXPECT_EQ(bench.workspace.windows.size(), 4u);

    // The match is on the exact caption: another case is another window.
    const std::string upper = bench.folder.write("PROG.a51", "");
    EXPECT_NE(bench.commands.OpenSource(upper), third);
}

TEST(OpenSource, AFileThatCantBeReadIsToldWithItsNumber) {
    DocumentBench bench;
    bench.commands.NewDocument();
    const std::string missing = bench.folder.path() + "fehlt.a51";
    EXPECT_EQ(bench.commands.OpenSource(missing), nullptr);
    ASSERT_EQ(bench.host.boxes.size(), 1u);
    EXPECT_EQ(bench.host.boxes[0].text,
              text8("Datei kann nicht geöffnet werden: ") + missing + ", #53");
    EXPECT_EQ(bench.active().caption(), "Unbenannt 1");
}

TEST(OpenSource, AnRtfSourceShowsItsPlainText) {
    DocumentBench bench;
    const std::string name = bench.folder.write(
        "alt.a51",
        "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Courier;}}\\f0 mov a,#1\\tab ;\\'e4\\par\r\n}");
    EXPECT_EQ(bench.commands.OpenSource(name)->text(), "mov a,#1\t;\xE4\r\n");
}

TEST(OpenSourceDialog, StartsInTheSourceFolderAndNotesFolderAndRecentFile) {
    DocumentBench bench;
    testing::ScratchFolder other;
    const std::string name = other.write("neu.a51", "nop\r\n");
    bench.dialogs.answers = {name};
    bench.commands.OpenSourceDialog();
    ASSERT_EQ(bench.dialogs.requests.size(), 1u);
    EXPECT_EQ(bench.dialogs.requests[0].title, text8("Datei öffnen"));
    EXPECT_EQ(bench.dialogs.requests[0].folder, bench.folder.path());
    EXPECT_EQ(bench.dialogs.requests[0].filter,
              "Quelldateien (*.a51)|*.a51|Alle Dateien (*.*)|*.*");
    EXPECT_EQ(bench.settings.sourceFolder, other.path());
    EXPECT_EQ(bench.workspace.menus, std::vector<std::string>{name});
}

TEST(SaveDocument, WritesOnlyADirtyWindowAndKeepsTheOldFileAsBackup) {
    DocumentBench bench;
    const std::string name = bench.folder.write("prog.a51", "alt\r\n");
    DocumentWindow* window = bench.commands.OpenSource(name);

    bench.commands.SaveDocument();  // unchanged: nothing at all, no backup either
    EXPECT_FALSE(fileExists(bench.folder.path() + "prog.sik51"));

    bench.type(*window, "neu\r\r\n");
    bench.commands.SaveDocument();
    EXPECT_EQ(bench.folder.read("prog.a51"), "neu\r\n");  // CR CR repaired
    EXPECT_EQ(bench.folder.read("prog.sik51"), "alt\r\n");
    EXPECT_FALSE(bench.dirty(*window));
    EXPECT_EQ(bench.workspace.menus, std::vector<std::string>{name});

    bench.type(*window, "dritte\r\n");
    bench.commands.SaveDocument();
    EXPECT_EQ(bench.folder.read("prog.sik51"), "neu\r\n");  // one backup, overwritten
}

TEST(SaveDocument, AnUntitledWindowAsksForItsNameAndADisassemblyKeepsItsPrefix) {
    DocumentBench bench;
    DocumentWindow* window = bench.commands.NewDocument();
    bench.type(*window, "");
    bench.commands.SaveDocument();  // empty text: nothing, not even the dialog
    EXPECT_TRUE(bench.dialogs.requests.empty());

    bench.type(*window, "nop\r\n");
    bench.commands.SaveDocument();  // cancelled
    EXPECT_TRUE(bench.dirty(*window));
    const std::string name = bench.folder.path() + "neu.a51";
    bench.dialogs.answers = {name};
    bench.commands.SaveDocument();
    EXPECT_EQ(bench.dialogs.requests.back().title, "Speichern unter");
    EXPECT_EQ(bench.dialogs.requests.back().fileName, "Unbenannt 1");
    EXPECT_EQ(window->caption(), name);
    EXPECT_FALSE(fileExists(bench.folder.path() + "neu.sik51"));  // nothing was there

    const std::string listing = bench.folder.path() + "out.d51";
    window->setCaption("Disassembling " + listing);
    bench.type(*window, "org 0\r\n");
    bench.commands.SaveDocument();
    EXPECT_EQ(bench.folder.read("out.d51"), "org 0\r\n");
    EXPECT_EQ(window->caption(), "Disassembling " + listing);
    EXPECT_EQ(bench.workspace.menus, std::vector<std::string>{name});  // no source file

    bench.dialogs.answers = {""};
    bench.commands.SaveDocumentAs();
    EXPECT_EQ(bench.dialogs.requests.back().fileName, listing);
    EXPECT_EQ(
        bench.dialogs.requests.back().filter,
        "Disassembling (*.d51)|*.d51|Disassemblingdatei (*.l51)|*.l51|Alle Dateien (*.*)|*.*");
}

TEST(SaveDocumentAs, AlwaysWritesAndTellsAFailureLeavingCaptionAndDirty) {
    DocumentBench bench;
    const std::string name = bench.folder.write("prog.a51", "text\r\n");
    DocumentWindow* window = bench.commands.OpenSource(name);
    const std::string copy = bench.folder.path() + "kopie.a51";
    bench.dialogs.answers = {copy};
    bench.commands.SaveDocumentAs();
    EXPECT_EQ(bench.dialogs.requests[0].filter,
              "Programmdatei (*.a51)|*.a51|Listingdatei (*.l51)|*.l51|Alle Dateien (*.*)|*.*");
    EXPECT_EQ(bench.folder.read("kopie.a51"), "text\r\n");
    EXPECT_EQ(window->caption(), copy);

    bench.type(*window, "mehr\r\n");
    const std::string nowhere = bench.folder.path() + "fehlt/x.a51";
    bench.dialogs.answers = {nowhere};
    bench.commands.SaveDocumentAs();
    ASSERT_EQ(bench.host.boxes.size(), 1u);
    EXPECT_EQ(
        bench.host.boxes[0].text,
        text8("Fehler Nummer 76 wurde ausgelöst von Korvex\r\nPfad nicht gefunden: ") + nowhere);
    EXPECT_EQ(window->caption(), copy);
    EXPECT_TRUE(bench.dirty(*window));
}

TEST(BackupName, CutsAtTheFirstDotOfTheWholePath) {
    EXPECT_EQ(backupName("/home/a/test.a51"), "/home/a/test.sik51");
    EXPECT_EQ(backupName("/home/v1.2/test.a51"), "/home/v1.sik51");
    EXPECT_EQ(backupName("/home/a/ohne"), "/home/a/ohne.sik51");
}

TEST(QueryClose, AsksForADirtyWindowAndSavesWithoutBackup) {
    DocumentBench bench;
    const std::string name = bench.folder.write("prog.a51", "alt\r\n");
    DocumentWindow* window = bench.commands.OpenSource(name);
    EXPECT_TRUE(bench.commands.QueryClose(*window));  // clean: no question
    EXPECT_TRUE(bench.host.boxes.empty());

    bench.type(*window, "neu\r\n");
    bench.host = ScriptedHost({MessageAnswer::Cancel, MessageAnswer::No, MessageAnswer::Yes});
    EXPECT_FALSE(bench.commands.QueryClose(*window));
    ASSERT_EQ(bench.host.boxes.size(), 1u);
    EXPECT_EQ(bench.host.boxes[0].title, "Korvex");
    EXPECT_EQ(bench.host.boxes[0].text,
              "Der Text in \"" + name + text8("\" wurde geändert.\r\n\r\nÄnderungen speichern?"));
    EXPECT_EQ(bench.host.boxes[0].buttons, MessageButtons::YesNoCancel);

    EXPECT_TRUE(bench.commands.QueryClose(*window));
    EXPECT_EQ(bench.folder.read("prog.a51"), "alt\r\n");

    EXPECT_TRUE(bench.commands.QueryClose(*window));
    EXPECT_EQ(bench.folder.read("prog.a51"), "neu\r\n");
    EXPECT_FALSE(fileExists(bench.folder.path() + "prog.sik51"));
    EXPECT_EQ(bench.active().bookmarkRemovals, 1);
}

TEST(QueryClose, AnUntitledWindowWithYesAndACancelledDialogClosesUnsaved) {
    DocumentBench bench;
    DocumentWindow* window = bench.commands.NewDocument();
    bench.type(*window, "nop\r\n");
    bench.host = ScriptedHost({MessageAnswer::Yes});
    EXPECT_TRUE(bench.commands.QueryClose(*window));
    EXPECT_EQ(bench.dialogs.requests.at(0).fileName, "Unbenannt");
}

TEST(RecentFiles, EightSourceFilesAtMostNewestFirstAndAChosenOneMovesUp) {
    DocumentBench bench;
    std::vector<std::string> names;
    for (int i = 1; i <= 9; ++i)
        names.push_back(bench.folder.write("p" + std::to_string(i) + ".a51", ""));
    for (const std::string& name : names) bench.commands.NoteRecentFile(name);
    bench.commands.NoteRecentFile(names[8]);  // listed already
    bench.commands.NoteRecentFile(bench.folder.path() + "p.l51");
    bench.commands.NoteRecentFile(bench.folder.path() + "p.A51");
    std::vector<std::string> expected(names.rbegin(), names.rend() - 1);
    EXPECT_EQ(bench.workspace.menus, expected);

    bench.commands.OpenRecentFile(3);
    EXPECT_EQ(bench.active().caption(), names[6]);
    EXPECT_EQ(bench.workspace.menus,
              (std::vector<std::string>{names[6], names[8], names[7], names[5], names[4], names[3],
                                        names[2], names[1]}));
    EXPECT_EQ(bench.store.GetSetting("Recent Files", "RecentFile1", ""), names[6]);
}

}  // namespace
}  // namespace korvex
