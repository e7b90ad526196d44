#include "workbench/block_edit.h"

#include "editor_fixture.h"

namespace korvex {
namespace {

TEST_F(EditorTest, CommentAndUncommentEveryLineOfTheSelection) {
    load("MOV A\r\n\tNOP\r\n; RET\r\nEND");
    const std::string loadedColours = colours();
    box.Select(0, box.TextLength());
    editor.BlockEdit(true, kCommentSymbol);
    EXPECT_EQ(box.Text(), ";MOV A\r\n;\tNOP\r\n;; RET\r\n;END");
    EXPECT_EQ(colours(),
              "cccccc.."
              "ccccc.."
              "cccccccc"
              "cccc");
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(box.SelLength(), 26);
    EXPECT_EQ(events.dirty, 1);
    EXPECT_FALSE(flags.SuspendChange || flags.SuspendSelChange || box.DrawingSuspended());

    // Only a ";" in the very first column comes off; what is left black
    // unless it still is a comment.
    box.Select(0, box.TextLength());
    editor.BlockEdit(false, kCommentSymbol);
    EXPECT_EQ(box.Text(), "MOV A\r\n\tNOP\r\n; RET\r\nEND");
    EXPECT_EQ(colours(), loadedColours);
    EXPECT_EQ(box.SelStart(), 0);
    box.Select(0, box.TextLength());
    editor.BlockEdit(false, kCommentSymbol);
    EXPECT_EQ(box.Text(), "MOV A\r\n\tNOP\r\n RET\r\nEND");
    EXPECT_EQ(events.dirty, 3);
}

TEST_F(EditorTest, IndentAndUnindentTouchOnlyTabsInTheFirstColumn) {
    load("A\r\n\tB\r\n  C\r\n\t; D");
    box.Select(0, box.TextLength());
    editor.BlockEdit(true, kIndentSymbol);
    EXPECT_EQ(box.Text(), "\tA\r\n\t\tB\r\n\t  C\r\n\t\t; D");
    for (int i = 0; i < 2; ++i) {
        box.Select(0, box.TextLength());
        editor.BlockEdit(false, kIndentSymbol);
    }
    EXPECT_EQ(box.Text(), "A\r\nB\r\n  C\r\n; D");
    box.Select(7, 2);
    editor.BlockEdit(false, kIndentSymbol);  // spaces stay
    EXPECT_EQ(box.Text(), "A\r\nB\r\n  C\r\n; D");
    EXPECT_EQ(events.dirty, 3);
}

TEST_F(EditorTest, TheWalkLeavesOutALastLineStartAndAShortFirstLine) {
    load("A\r\nB\r\nC");
    box.Select(0, 3);  // ends at the start of "B"
    editor.BlockEdit(true, kCommentSymbol);
    EXPECT_EQ(box.Text(), ";A\r\nB\r\nC");

    load("A\r\nB");
    box.Select(0, box.TextLength());
    editor.BlockEdit(true, kCommentSymbol);
    EXPECT_EQ(box.Text(), "A\r\n;B");  // the walk stops before offset 2

    load("AB\r\n\r\nC");
    box.Select(0, box.TextLength());
    editor.BlockEdit(true, kCommentSymbol);
    EXPECT_EQ(box.Text(), ";AB\r\n;\r\n;C");
    box.SetSelStart(6);  // a caret alone works its own line
    editor.BlockEdit(false, kCommentSymbol);
    EXPECT_EQ(box.Text(), ";AB\r\n\r\n;C");
    EXPECT_EQ(box.SelStart(), 5);
    EXPECT_EQ(box.SelLength(), 0);
}

}  // namespace
}  // namespace korvex
