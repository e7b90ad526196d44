#include "workbench/bookmarks.h"

#include "editor_fixture.h"

namespace korvex {
namespace {

TEST(BookmarkStrip, IsTheFirstHundredTwipsWithoutTheEdge) {
    EXPECT_FALSE(InBookmarkStrip(0));
    EXPECT_TRUE(InBookmarkStrip(0.1));
    EXPECT_TRUE(InBookmarkStrip(99.9));
    EXPECT_FALSE(InBookmarkStrip(100));
    EXPECT_FALSE(InBookmarkStrip(-5));
}

TEST_F(EditorTest, ABookmarkIsThreePicturesThatComeAndGoWithoutMakingTheTextDirty) {
    load("NOP\r\nRET");
    box.SetSelStart(5);
    editor.ToggleBookmark();
    EXPECT_TRUE(box.PicturePositions().empty());  // bookmarks are off

    settings.BookmarksEnabled = true;
    editor.ToggleBookmark();
    EXPECT_EQ(box.PicturePositions(), (std::vector<std::int32_t>{5, 6, 7}));
    EXPECT_EQ(box.Text(), "NOP\r\n   RET");
    box.SetSelStart(0);
    editor.ToggleBookmark();
    box.SetSelStart(8);
    EXPECT_EQ(box.TextWithoutPictures(), "NOP\r\nRET");

    box.SetSelStart(8);  // the second one
    editor.ToggleBookmark();
    EXPECT_EQ(box.PicturePositions(), (std::vector<std::int32_t>{0, 1, 2}));
    box.SetSelStart(10);
    editor.RemoveBookmarks();
    EXPECT_EQ(box.Text(), "NOP\r\nRET");
    EXPECT_EQ(box.SelStart(), 7);  // the caret keeps its place in the text
    EXPECT_EQ(events.dirty, 0);

    load("");
    editor.ToggleBookmark();
    EXPECT_EQ(box.Text(), "");
}

}  // namespace
}  // namespace korvex
