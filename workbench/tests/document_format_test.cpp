#include "workbench/document_format.h"

#include "base/failure.h"
#include "editor_fixture.h"

namespace korvex {
namespace {

TEST(ScaledSourceTabs, AreReckonedIn16BitsAndOverflowFromSize30) {
    EXPECT_EQ(ScaledSourceTabs(10), (std::array<std::int32_t, 5>{320, 520, 720, 920, 1120}));
    EXPECT_EQ(ScaledSourceTabs(29)[4], 3248);
    try {
        ScaledSourceTabs(30);
        ADD_FAILURE() << "no overflow";
    } catch (const RuntimeFailure& failure) {
        EXPECT_EQ(failure.number(), 6);
    }
}

TEST_F(EditorTest, FormattingTheDocumentSetsFontTabsIndentsAndComments) {
    settings.EditorFontName = "Courier New";
    settings.EditorFontSize = 9;
    settings.EditorFontBold = true;
    settings.HangingIndent = true;
    load("MOV A ; x\r\nNOP");
    box.Select(0, box.TextLength());
    box.SetSelColor(0x0000FF);
    box.SetSelStart(12);
    editor.FormatDocumentText();
    EXPECT_EQ(colours(), "......ccccc...");
    EXPECT_EQ(box.SelStart(), 12);
    EXPECT_EQ(box.SelTabs(4), 1008);
    EXPECT_EQ(box.SelIndent(), 120);
    EXPECT_EQ(box.SelHangingIndent(), 600);
    EXPECT_EQ(box.FormatAt(0).font, (TextFont{"Courier New", 9, true, false}));
    EXPECT_FALSE(flags.SuspendChange || flags.SuspendSelChange || box.DrawingSuspended());
    EXPECT_EQ(events.dirty, 0);

    editor.SetDisassembly(true);
    editor.FormatDocumentText();
    EXPECT_EQ(box.SelTabCount(), 6);
    EXPECT_EQ(box.SelTabs(1), 1130);
    EXPECT_EQ(box.SelTabs(5), 4300);
    EXPECT_EQ(box.SelHangingIndent(), 1945);

    editor.SetDisassembly(false);
    settings.EditorFontSize = 30;
    EXPECT_THROW(editor.FormatDocumentText(), RuntimeFailure);
    EXPECT_EQ(box.SelTabCount(), 6);
    EXPECT_FALSE(flags.SuspendChange || flags.SuspendSelChange || box.DrawingSuspended());
}

TEST_F(EditorTest, ANewWindowStartsWithUnscaledTabsAndTheSettingsFont) {
    settings.EditorFontSize = 12;
    settings.NoRightWrap = true;
    editor.InitialiseWindow();
    EXPECT_EQ(box.SelTabs(0), 320);
    EXPECT_EQ(box.SelTabs(4), 1120);
    EXPECT_EQ(box.SelHangingIndent(), 0);
    EXPECT_EQ(box.RightMargin(), 12000);
    box.SetText("A");
    EXPECT_EQ(box.SelFontSize(), 12);
}

}  // namespace
}  // namespace korvex
