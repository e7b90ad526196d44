#include "workbench/comment_colouring.h"

#include "editor_fixture.h"
#include "workbench/line_bounds.h"

namespace korvex {
namespace {

constexpr std::int32_t kRed = 0x0000FF;

// A ";" in quotes starts a comment too; two in a line make one; a last line
// without line end is coloured to the end of the text.
const std::string kSource = "MOV A,#';' ; x\r\nNOP\r\n;a;b\r\nRET ; end";
const std::string kColoured = "........cccccccc.....cccccc....ccccc";

TEST_F(EditorTest, CommentsTakeTheColourFromTheFirstSemicolonWithTheLineEnd) {
    box.SetText(kSource);
    box.SetSelStart(17);
    ApplyCommentColours(box, flags, kComment);
    EXPECT_EQ(colours(), kColoured);
    EXPECT_EQ(box.SelStart(), 17);
    EXPECT_FALSE(flags.SuspendSelChange);
    EXPECT_FALSE(box.DrawingSuspended());

    // Other text keeps its colour, unless the document is recoloured.
    box.Select(0, box.TextLength());
    box.SetSelColor(kRed);
    ApplyCommentColours(box, flags, kComment);
    EXPECT_EQ(colours(), "????????cccccccc?????cccccc????ccccc");
    RecolourWholeDocument(box, flags, kComment);
    EXPECT_EQ(colours(), kColoured);
}

TEST_F(EditorTest, OneLinesCommentIsColouredWithoutItsLineEnd) {
    box.SetText("NOP\r\nRET ; x ; y\r\nEND");
    EXPECT_FALSE(ColourLineComment(box, flags, 2, kComment));
    EXPECT_TRUE(ColourLineComment(box, flags, 16, kComment));  // at the line's CR
    EXPECT_EQ(colours(),
              "........."
              "ccccccc"
              ".....");
    EXPECT_FALSE(flags.SuspendChange);

    const LineBounds line = LineBoundsAt(box.Text(), 5);
    EXPECT_EQ(line.start, 5);
    EXPECT_EQ(line.end, 16);
    EXPECT_EQ(line.text, "RET ; x ; y");
    EXPECT_EQ(LineBoundsAt(box.Text(), 999).text, "END");
    EXPECT_EQ(LineBoundsAt("", -3).end, 0);
}

}  // namespace
}  // namespace korvex
