// Enter, the selection keys, deleting and the keyboard paste.
#include "base/failure.h"
#include "editor_fixture.h"

namespace korvex {
namespace {

TEST_F(EditorTest, EnterIndentsWithTheTabsOfTheLineUpToTheCaret) {
    load("X\r\n\t\tMOV A");
    box.SetSelStart(box.TextLength());
    EXPECT_TRUE(editor.Enter());
    EXPECT_EQ(box.Text(), "X\r\n\t\tMOV A\r\n\t\t");
    EXPECT_EQ(box.SelStart(), box.TextLength());
    EXPECT_EQ(events.caretLine, 3);
    EXPECT_EQ(events.dirty, 1);
    EXPECT_FALSE(flags.SuspendSelChange);

    box.SetSelStart(4);  // between the two tabs
    editor.Enter();
    EXPECT_EQ(box.Text(), "X\r\n\t\r\n\t\tMOV A\r\n\t\t");

    // At a line start the new line opens above, with the line's tabs.
    load("X\r\n\tMOV A");
    box.SetSelStart(3);
    editor.Enter();
    EXPECT_EQ(box.Text(), "X\r\n\t\r\n\tMOV A");
    EXPECT_EQ(box.SelStart(), 6);

    load("  MOV");  // spaces don't indent
    box.SetSelStart(5);
    editor.Enter();
    EXPECT_EQ(box.Text(), "  MOV\r\n");

    // At offset 0 and with a selection the key is the control's own.
    box.SetSelStart(0);
    EXPECT_FALSE(editor.Enter());
    box.Select(1, 2);
    EXPECT_FALSE(editor.Enter());
    EXPECT_EQ(box.Text(), "  MOV\r\n");
}

TEST_F(EditorTest, AltSTakesTheLineWithItsEndAndAltWUpToPunctuation) {
    load("A\r\nMOV B.1\r\nC");
    box.SetSelStart(5);
    editor.SelectLine();
    EXPECT_EQ(box.SelText(), "MOV B.1\r\n");
    box.SetSelStart(13);
    editor.SelectLine();
    EXPECT_EQ(box.SelText(), "C");
    box.SetSelStart(3);
    editor.SelectToPunctuation();
    EXPECT_EQ(box.SelText(), "MOV");
    box.SetSelStart(7);
    editor.SelectToPunctuation();
    EXPECT_EQ(box.SelText(), "B");
}

TEST_F(EditorTest, DeleteTakesTheCaretsCharacterOrALineEndWhole) {
    settings.EditorFontSize = 12;
    load("AB\r\nC");
    box.SetSelStart(0);
    editor.DeleteSelection();
    EXPECT_EQ(box.Text(), "B\r\nC");
    box.SetSelStart(1);
    editor.DeleteSelection();
    EXPECT_EQ(box.Text(), "BC");
    EXPECT_EQ(events.dirty, 2);

    // Emptied, the document is formatted afresh, with the scaled tabs.
    box.Select(0, 2);
    editor.DeleteSelection();
    EXPECT_EQ(box.Text(), "");
    EXPECT_EQ(box.SelTabs(0), 384);
    editor.DeleteSelection();
    EXPECT_EQ(box.Text(), "");
}

TEST_F(EditorTest, AKeyboardPasteTakesTheFontOfTheSettings) {
    settings.EditorFontName = "Courier New";
    settings.EditorFontSize = 9;
    load("AB");
    box.SetSelStart(1);
    editor.KeyDown();
    type("X\tY");
    editor.KeyboardPasteDone();
    EXPECT_EQ(box.SelStart(), 4);
    EXPECT_EQ(editor.State().KeyDownCaret, 4);
    EXPECT_EQ(box.FormatAt(0).font.name, "MS Sans Serif");
    EXPECT_EQ(box.FormatAt(1).font.name, "Courier New");
    EXPECT_EQ(box.FormatAt(3).font.size, 9);
    EXPECT_EQ(box.FormatAt(4).font.name, "MS Sans Serif");
    box.SetSelStart(2);
    EXPECT_EQ(box.SelTabs(0), 288);

    // From a font size of 30 the tab arithmetic overflows: nothing changes.
    settings.EditorFontSize = 30;
    box.SetSelStart(0);
    editor.KeyDown();
    type("Z");
    try {
        editor.KeyboardPasteDone();
        ADD_FAILURE() << "no overflow";
    } catch (const RuntimeFailure& failure) {
        EXPECT_EQ(failure.number(), 6);
    }
    EXPECT_EQ(box.FormatAt(0).font.name, "MS Sans Serif");
    EXPECT_FALSE(flags.SuspendChange || box.DrawingSuspended());
}

}  // namespace
}  // namespace korvex
