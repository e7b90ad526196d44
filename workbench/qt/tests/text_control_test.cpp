// One suite for both text controls: what the plain model does, the widget
// must do too, or the editor's rules tested on the model mean nothing.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QTextEdit>
#include <filesystem>
#include <fstream>

#include "base/failure.h"
#include "base/files.h"
#include "gui/qt_text_control.h"
#include "workbench/plain_text_control.h"

namespace korvex {
namespace {

template <typename Control>
struct Harness;

template <>
struct Harness<PlainTextControl> {
    PlainTextControl control;
};

template <>
struct Harness<gui::QtTextControl> {
    QTextEdit edit;
    gui::QtTextControl control{&edit};
};

struct EventLog : TextControlListener {
    void Change() override { events.push_back("Change"); }
    void SelChange() override { events.push_back("SelChange"); }
    std::vector<std::string> events;
};

template <typename Control>
class TextControlTest : public ::testing::Test {
  protected:
    Harness<Control> harness;
    TextControl& box = harness.control;
};

using Controls = ::testing::Types<PlainTextControl, gui::QtTextControl>;
TYPED_TEST_SUITE(TextControlTest, Controls);

constexpr std::int32_t kGreen = 0x008000;
constexpr std::int32_t kRed = 0x0000FF;

TYPED_TEST(TextControlTest, HoldsLinesAsCrLfAndCountsALineEndAsTwoCharacters) {
    TextControl& box = this->box;
    box.SetText("a\nb\rc\r\nd");
    EXPECT_EQ(box.Text(), "a\r\nb\r\nc\r\nd");
    EXPECT_EQ(box.TextLength(), 10);
    EXPECT_EQ(box.GetLineFromChar(0), 0);
    EXPECT_EQ(box.GetLineFromChar(1), 0);  // the CR
    EXPECT_EQ(box.GetLineFromChar(2), 0);  // the LF
    EXPECT_EQ(box.GetLineFromChar(3), 1);
    EXPECT_EQ(box.GetLineFromChar(9), 3);
    EXPECT_EQ(box.GetLineFromChar(99), 3);
    EXPECT_EQ(box.CharAt(4), '\r');
    EXPECT_EQ(box.CharAt(5), '\n');
    EXPECT_EQ(box.CharAt(10), 0);

    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte)
        if (byte != '\r' && byte != '\n') everyByte += static_cast<char>(byte);
    box.SetText(everyByte + "\r\n" + everyByte);
    EXPECT_EQ(box.Text(), everyByte + "\r\n" + everyByte);
    box.Select(250, 10);
    EXPECT_EQ(box.SelText(), everyByte.substr(250) + "\r\n" + everyByte.substr(0, 4));
}

TYPED_TEST(TextControlTest, SelectionIsClampedAndNeverSplitsALineEnd) {
    TextControl& box = this->box;
    box.SetText("ab\r\ncd");
    box.Select(1, 4);
    EXPECT_EQ(box.SelText(), "b\r\nc");
    box.SetSelStart(3);  // between CR and LF: before the CR
    EXPECT_EQ(box.SelStart(), 2);
    box.SetSelLength(1);  // a selection ending there takes the LF too
    EXPECT_EQ(box.SelLength(), 2);
    EXPECT_EQ(box.SelText(), "\r\n");
    box.Select(4, 0);
    EXPECT_EQ(box.SelStart(), 4);
    box.Select(-5, -1);
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 0);
    box.Select(2, 1000);
    EXPECT_EQ(box.SelLength(), 4);
    box.SetSelStart(1000);
    EXPECT_EQ(box.SelStart(), 6);
}

TYPED_TEST(TextControlTest, WritingSelTextReplacesTheSelectionAndLeavesTheCaretBehind) {
    TextControl& box = this->box;
    box.SetText("MOV A,#1\r\nRET");
    box.Select(4, 1);
    box.SetSelText("R0\nNOP\r");
    EXPECT_EQ(box.Text(), "MOV R0\r\nNOP\r\n,#1\r\nRET");
    EXPECT_EQ(box.SelStart(), 13);
    EXPECT_EQ(box.SelLength(), 0);
    EXPECT_EQ(box.GetLineFromChar(box.SelStart()), 2);
    box.Select(3, 9);  // ends between CR and LF: the line end goes whole
    box.SetSelText("");
    EXPECT_EQ(box.Text(), "MOV,#1\r\nRET");
    EXPECT_EQ(box.SelStart(), 3);
    box.SetSelStart(box.TextLength());
    box.SetSelText("\r\n");
    EXPECT_EQ(box.Text(), "MOV,#1\r\nRET\r\n");
    EXPECT_EQ(box.GetLineFromChar(box.TextLength()), 2);
}

TYPED_TEST(TextControlTest, ColourBelongsToCharactersAndTheCaretShowsTheOneBeforeIt) {
    TextControl& box = this->box;
    box.SetText("ab;cd\r\nef");
    box.Select(2, 5);  // ";cd" and the line end
    box.SetSelColor(kGreen);
    box.Select(0, 3);
    EXPECT_EQ(box.SelColor(), kBlack);  // the first character decides
    box.Select(3, 2);
    EXPECT_EQ(box.SelColor(), kGreen);
    box.SetSelStart(3);
    EXPECT_EQ(box.SelColor(), kGreen);  // behind the ";"
    box.SetSelStart(2);
    EXPECT_EQ(box.SelColor(), kBlack);
    box.SetSelStart(7);
    EXPECT_EQ(box.SelColor(), kBlack);  // at a line start: the line's first character

    // New text takes the colour the caret shows.
    box.SetSelStart(4);
    box.SetSelText("x");
    box.Select(4, 1);
    EXPECT_EQ(box.SelColor(), kGreen);
    // A colour set at the caret holds for what is written there next.
    box.SetSelStart(0);
    box.SetSelColor(kRed);
    EXPECT_EQ(box.SelColor(), kRed);
    box.SetSelText("z");
    box.Select(0, 1);
    EXPECT_EQ(box.SelColor(), kRed);
    box.SetSelStart(1);
    box.SetSelColor(kGreen);
    box.SetSelStart(1);  // moving the caret forgets it
    EXPECT_EQ(box.SelColor(), kRed);

    // A system colour is kept as its number.
    box.Select(0, 2);
    box.SetSelColor(static_cast<std::int32_t>(0x80000008u));
    EXPECT_EQ(box.SelColor(), static_cast<std::int32_t>(0x80000008u));

    box.SetText(box.Text());
    box.Select(3, 1);
    EXPECT_EQ(box.SelColor(), kBlack);
}

TYPED_TEST(TextControlTest, FontOfTheSelectionAndOfTheWholeText) {
    TextControl& box = this->box;
    box.SetFont(TextFont{"Courier New", 12, false, false});
    box.SetText("abc\r\ndef");
    EXPECT_EQ(box.SelFontName(), "Courier New");
    EXPECT_EQ(box.SelFontSize(), 12);
    box.Select(1, 5);
    box.SetSelFontName("Arial");
    box.SetSelFontSize(9);
    box.SetSelBold(true);
    box.SetSelItalic(true);
    box.SetSelFontSize(0);  // refused
    EXPECT_EQ(box.SelFontName(), "Arial");
    EXPECT_EQ(box.SelFontSize(), 9);
    EXPECT_TRUE(box.SelBold());
    EXPECT_TRUE(box.SelItalic());
    box.Select(0, 1);
    EXPECT_EQ(box.SelFontName(), "Courier New");
    EXPECT_FALSE(box.SelBold());
    box.Select(5, 1);
    EXPECT_EQ(box.SelFontSize(), 9);
    box.Select(6, 1);
    EXPECT_EQ(box.SelFontSize(), 12);
}

TYPED_TEST(TextControlTest, ParagraphFormatCoversTheLinesTheSelectionTouches) {
    TextControl& box = this->box;
    box.SetText("one\r\ntwo\r\nthree");
    box.Select(0, box.TextLength());
    box.SetSelTabCount(5);
    for (int i = 0; i < 5; ++i) box.SetSelTabs(i, 320 + 200 * i);
    box.SetSelTabs(7, 999);  // beyond the count: ignored
    box.SetSelIndent(120);
    box.SetSelHangingIndent(600);
    box.Select(5, 3);  // the second line
    box.SetSelIndent(100);
    box.SetSelTabs(0, -10);

    box.SetSelStart(11);
    EXPECT_EQ(box.SelTabCount(), 5);
    EXPECT_EQ(box.SelTabs(0), 320);
    EXPECT_EQ(box.SelTabs(4), 1120);
    EXPECT_EQ(box.SelTabs(7), 0);
    EXPECT_EQ(box.SelIndent(), 120);
    EXPECT_EQ(box.SelHangingIndent(), 600);
    box.SetSelStart(6);
    EXPECT_EQ(box.SelIndent(), 100);
    EXPECT_EQ(box.SelTabs(0), 0);

    // A line made by writing a line end takes its paragraph's format.
    box.SetSelStart(13);
    box.SetSelText("\r\n");
    box.SetSelStart(box.TextLength());
    EXPECT_EQ(box.SelTabs(1), 520);
    EXPECT_EQ(box.SelHangingIndent(), 600);

    box.SetRightMargin(12000);
    EXPECT_EQ(box.RightMargin(), 12000);
    box.SetRightMargin(-1);
    EXPECT_EQ(box.RightMargin(), 0);
}

TYPED_TEST(TextControlTest, UpToAndSpanMoveOverCharacterSets) {
    TextControl& box = this->box;
    box.SetText("first\r\n\tMOV A,#1 ; x\r\nlast");
    box.SetSelStart(12);
    box.UpTo("\r\n", false, false);
    EXPECT_EQ(box.SelStart(), 7);  // the start of the line
    box.UpTo("\r\n", false, false);
    EXPECT_EQ(box.SelStart(), 7);  // already there
    box.Span("\r\n", true, true);
    EXPECT_EQ(box.SelText(), "\tMOV A,#1 ; x");
    box.UpTo("\r\n", true, false);
    EXPECT_EQ(box.SelStart(), 20);  // from the selection's end, to before the CR
    EXPECT_EQ(box.SelLength(), 0);
    box.UpTo("\t", true, true);
    EXPECT_EQ(box.SelStart(), 20);
    box.SetSelStart(7);
    box.UpTo("\t", true, true);  // to the first character that is not a tab
    EXPECT_EQ(box.SelStart(), 8);
    box.Span(" .?!:", true, true);
    EXPECT_EQ(box.SelText(), "MOV");
    box.SetSelStart(13);
    box.Span("ABCDMOV ", false, false);
    EXPECT_EQ(box.SelText(), "MOV A");
    box.SetSelStart(2);
    box.UpTo(";", false, false);
    EXPECT_EQ(box.SelStart(), 0);
    box.SetSelStart(24);
    box.UpTo(";", true, false);
    EXPECT_EQ(box.SelStart(), box.TextLength());
}

TYPED_TEST(TextControlTest, FindSelectsAHitWithinTheRange) {
    TextControl& box = this->box;
    box.SetText("mov ar0,r0\r\nMOV \xE4R0,R0\r\n");
    EXPECT_EQ(box.Find("MOV", 0), 0);
    EXPECT_EQ(box.SelText(), "mov");
    EXPECT_EQ(box.Find("MOV", 1, -1, kFindMatchCase), 12);
    EXPECT_EQ(box.Find("r0", 0, -1, kFindWholeWord), 8);  // not the one in "ar0"
    EXPECT_EQ(box.Find("\xC4R0", 0), 16);                 // case folds the umlauts too
    EXPECT_EQ(box.Find("R0", 17, -1, kFindWholeWord), 20);
    EXPECT_EQ(box.Find("r0,", -7, 10), 5);  // a negative start counts as 0
    box.Select(1, 2);
    EXPECT_EQ(box.Find("r0,", 0, 7), -1);  // the hit would end past the range
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(box.SelLength(), 2);
    EXPECT_EQ(box.Find("\r\n", 0), 10);
    EXPECT_EQ(box.SelText(), "\r\n");
    EXPECT_EQ(box.Find("", 0), -1);
    EXPECT_EQ(box.Find("mov", 999), -1);
}

TYPED_TEST(TextControlTest, APictureIsOneCharacterThatTheTextShowsAsABlank) {
    TextControl& box = this->box;
    box.SetText("a\r\nMOV A,B");
    box.Select(3, 0);
    for (int i = 0; i < 3; ++i) box.InsertPicture();
    EXPECT_EQ(box.Text(), "a\r\n   MOV A,B");
    EXPECT_EQ(box.SelStart(), 6);
    EXPECT_EQ(box.PicturePositions(), (std::vector<std::int32_t>{3, 4, 5}));
    box.Select(5, 2);
    EXPECT_TRUE(box.SelHasPicture());
    EXPECT_EQ(box.SelText(), " M");
    box.Select(6, 3);
    EXPECT_FALSE(box.SelHasPicture());
    box.SetSelStart(9);
    box.SetSelText(" ");  // a blank is no picture
    EXPECT_EQ(box.PicturePositions().size(), 3u);
    EXPECT_EQ(box.GetLineFromChar(12), 1);

    box.Select(4, 1);
    box.SetSelText("");
    EXPECT_EQ(box.PicturePositions(), (std::vector<std::int32_t>{3, 4}));
    box.Select(0, box.TextLength());
    box.SetSelColor(kGreen);
    box.Select(5, 3);
    EXPECT_EQ(box.SelColor(), kGreen);
    box.SetText(box.Text());
    EXPECT_TRUE(box.PicturePositions().empty());
}

// Events come as the selection moves and the text changes, never for a
// change of format; out of sight as in sight.
TYPED_TEST(TextControlTest, WorksAlikeOutOfSight) {
    TextControl& box = this->box;
    box.SetText("NOP\r\nRET");
    EventLog log;
    box.SetListener(&log);
    box.SetDrawingSuspended(true);
    EXPECT_TRUE(box.DrawingSuspended());
    box.SetSelStart(5);
    box.SetSelStart(5);  // no move, no event
    box.SetSelText(";\r\nMOV A\r\n");
    box.InsertPicture();
    EXPECT_EQ(box.Text(), "NOP\r\n;\r\nMOV A\r\n RET");
    EXPECT_EQ(box.SelStart(), 16);
    EXPECT_EQ(box.GetLineFromChar(16), 3);
    box.Select(8, 5);
    EXPECT_EQ(box.SelText(), "MOV A");
    box.SetSelColor(kGreen);
    box.Select(5, 1);
    box.SetSelText("");
    EXPECT_EQ(log.events, (std::vector<std::string>{"SelChange", "SelChange", "Change", "SelChange",
                                                    "Change", "SelChange", "SelChange", "SelChange",
                                                    "SelChange", "SelChange", "Change"}));
    box.SetDrawingSuspended(false);
    EXPECT_EQ(box.Text(), "NOP\r\n\r\nMOV A\r\n RET");
    EXPECT_EQ(box.PicturePositions(), (std::vector<std::int32_t>{14}));
    box.Select(7, 1);
    EXPECT_EQ(box.SelColor(), kGreen);
    EXPECT_EQ(box.GetLineFromChar(15), 3);
    box.SetListener(nullptr);

    // A new text written out of sight is coloured there and shown whole.
    box.SetDrawingSuspended(true);
    box.SetText("A ;x\r\nB ;y");
    box.Select(2, 2);
    box.SetSelColor(kGreen);
    box.SetSelStart(8);
    EXPECT_EQ(box.GetLineFromChar(8), 1);
    box.Select(8, 2);
    box.SetSelColor(kRed);
    box.SetSelStart(7);
    box.SetDrawingSuspended(false);
    EXPECT_EQ(box.Text(), "A ;x\r\nB ;y");
    EXPECT_EQ(box.SelStart(), 7);
    box.Select(3, 1);
    EXPECT_EQ(box.SelColor(), kGreen);
    box.Select(6, 1);
    EXPECT_EQ(box.SelColor(), kBlack);
    box.Select(9, 1);
    EXPECT_EQ(box.SelColor(), kRed);
}

// A listener that edits the text from inside the event, as the editor does.
struct Recolourer : TextControlListener {
    explicit Recolourer(TextControl& box) : box(box) {}
    void Change() override {
        if (busy) return;
        busy = true;
        ++changes;
        const std::int32_t start = box.SelStart();
        box.Select(0, box.TextLength());
        box.SetSelColor(kRed);
        box.SetSelStart(start);
        busy = false;
    }
    void SelChange() override { ++selChanges; }
    TextControl& box;
    bool busy = false;
    int changes = 0;
    int selChanges = 0;
};

TYPED_TEST(TextControlTest, AListenerMayEditFromInsideTheEvent) {
    TextControl& box = this->box;
    box.SetText("abc");
    Recolourer recolourer(box);
    box.SetListener(&recolourer);
    box.SetSelStart(3);
    box.SetSelText("d");
    EXPECT_EQ(recolourer.changes, 1);
    EXPECT_EQ(box.SelStart(), 4);
    box.Select(0, 1);
    EXPECT_EQ(box.SelColor(), kRed);
    box.SetListener(nullptr);
}

TYPED_TEST(TextControlTest, LoadsAndSavesPlainTextAndRtf) {
    TextControl& box = this->box;
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() /
        ("korvex_text_control_" + std::to_string(::getpid()) + "_" +
         ::testing::UnitTest::GetInstance()->current_test_info()->name());
    std::filesystem::create_directories(folder);
    const std::string plain = (folder / "a.a51").string();
    const std::string rtf = (folder / "b.rtf").string();

    box.SetText("; \xC4nderung\r\nMOV A,#'{'\r\n");
    box.SetSelStart(2);
    box.InsertPicture();
    box.SaveFile(plain, TextFileType::Plain);
    EXPECT_EQ(readWholeFile(plain), "; \xC4nderung\r\nMOV A,#'{'\r\n");  // no picture
    box.SaveFile(rtf, TextFileType::Rtf);
    box.SetText("");
    box.LoadFile(rtf, TextFileType::Rtf);
    EXPECT_EQ(box.Text(), "; \xC4nderung\r\nMOV A,#'{'\r\n");
    box.LoadFile(plain, TextFileType::Plain);
    EXPECT_EQ(box.Text(), "; \xC4nderung\r\nMOV A,#'{'\r\n");
    try {
        box.LoadFile((folder / "fehlt.a51").string(), TextFileType::Plain);
        ADD_FAILURE() << "a missing file loads";
    } catch (const RuntimeFailure& failure) {
        EXPECT_EQ(failure.number(), 53);
    }
    EXPECT_EQ(box.Text(), "; \xC4nderung\r\nMOV A,#'{'\r\n");
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace korvex
