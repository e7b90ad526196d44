#include "workbench/report_colouring.h"

#include "editor_fixture.h"

namespace korvex {
namespace {

// "." black, "c" comment colour, "r" red; a capital letter is in Arial.
std::string picture(const PlainTextControl& box, std::int32_t comment) {
    std::string letters;
    for (std::int32_t at = 0; at < box.TextLength(); ++at) {
        const PlainTextControl::CharFormat format = box.FormatAt(at);
        char letter = format.colour == kBlack       ? '.'
                      : format.colour == comment    ? 'c'
                      : format.colour == kReportRed ? 'r'
                                                    : '?';
        if (format.font.name == "Arial") letter = static_cast<char>(letter - 32);
        letters += letter;
    }
    return letters;
}

TEST_F(EditorTest, AReportShowsItsFindingsRedAndItsCommentsInArial) {
    // A marker at the start makes the whole comment red; one inside it only
    // the part from the marker on; the first findings heading turns red too.
    box.SetText(
        "Warnungen/Fehler: 2\r\n"
        "NOP ;>err6 x\r\n"
        "RET ; a;>err9\r\n"
        "Warnungen/Fehler: ; b");
    box.SetSelStart(20);
    ColourReport(box, flags, kComment);
    EXPECT_EQ(picture(box, kComment),
              "rrrrrrrrrrrrrrrrr...."
              "....RRRRRRRRRR"  // a selection never ends between CR and LF
              "....CCCRRRRRRRR"
              "..................CCC");
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 0);
    EXPECT_FALSE(flags.SuspendSelChange);
    EXPECT_FALSE(box.DrawingSuspended());
}

TEST_F(EditorTest, AReportWithoutCommentsOrFindingsStaysAsItIs) {
    box.SetText("Keine Fehler\r\nCode: 12 Bytes");
    ColourReport(box, flags, kComment);
    EXPECT_EQ(picture(box, kComment), std::string(28, '.'));
    box.SetText("");
    ColourReport(box, flags, kComment);
    EXPECT_EQ(box.TextLength(), 0);
}

}  // namespace
}  // namespace korvex
