// The change and selection handlers while the user types and moves.
#include "editor_fixture.h"
#include "workbench/editor_guards.h"

namespace korvex {
namespace {

TEST_F(EditorTest, AnEditedLineStaysBlackUntilTheCaretLeavesIt) {
    load("MOV A ; x\r\nNOP\r\n");
    box.SetSelStart(3);
    type("B");
    EXPECT_EQ(events.dirty, 1);
    EXPECT_EQ(colours(),
              ".........."
              "cc"
              ".....");
    EXPECT_TRUE(editor.State().LineEdited);
    type(";");  // a second ";" before the first: it now decides
    EXPECT_EQ(colours(),
              "..........."
              "cc"
              ".....");

    box.SetSelStart(13);  // onto the next line
    EXPECT_EQ(colours(),
              "...."
              "ccccccc"
              "cc"
              ".....");
    EXPECT_FALSE(editor.State().LineEdited);
    EXPECT_EQ(events.caretLine, 2);

    box.SetSelStart(2);  // back, and typing blackens it again
    type("X");
    EXPECT_EQ(colours(),
              "............"
              "cc"
              ".....");
    box.SetSelStart(box.TextLength());
    EXPECT_EQ(colours(),
              "....."
              "ccccccc"
              "cc"
              ".....");
}

TEST_F(EditorTest, ACommentThatCameWithoutAKeyIsColouredWhenTheCaretArrives) {
    load("NOP\r\nRET");
    {
        FlagGuard selection(flags.SuspendSelChange);
        FlagGuard change(flags.SuspendChange);
        box.SetSelStart(box.TextLength());
        box.SetSelText(" ; weg");
    }
    EXPECT_EQ(events.dirty, 0);
    box.SetSelStart(6);
    EXPECT_EQ(colours(),
              "....."
              "...."
              "ccccc");
    EXPECT_EQ(editor.State().LastCaret, 6);
}

TEST_F(EditorTest, TheSelectionHandlerTellsTheWindowAndRestartsAnEmptiedText) {
    load("NOP\r\nRET");
    box.Select(5, 2);
    EXPECT_EQ(events.caretLine, 2);
    EXPECT_TRUE(events.selection);
    EXPECT_GT(events.activations, 0);

    editor.ModifierDown();  // Shift held: the handler rests
    box.SetSelStart(0);
    EXPECT_EQ(events.caretLine, 2);
    editor.ModifiersReleased();
    EXPECT_FALSE(events.selection);

    box.Select(0, box.TextLength());
    type("");
    EXPECT_EQ(box.SelTabCount(), 5);
    EXPECT_EQ(box.SelTabs(4), 1120);
    EXPECT_FALSE(flags.SuspendSelChange);
}

}  // namespace
}  // namespace korvex
