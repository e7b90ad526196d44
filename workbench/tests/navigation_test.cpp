// Go to line and the word for F1.
#include "editor_fixture.h"
#include "workbench/help_word.h"

namespace korvex {
namespace {

class GoToLineTest : public EditorTest {
  protected:
    // Answers the prompt with `answer` and notes what it was asked.
    std::int32_t caretAfter(const std::string& answer) {
        editor.GoToLine(
            [&](const std::string& title, const std::string& text, const std::string& offered) {
                asked = title + "|" + text + "|" + offered;
                return answer;
            });
        return box.SelStart();
    }
    std::string asked;
};

TEST_F(GoToLineTest, PutsTheCaretAtTheStartOfTheNamedLine) {
    load("L1\r\nL2\r\nL3\r\nL4");
    EXPECT_EQ(caretAfter("3"), 8);
    EXPECT_EQ(asked, "Gehe zu Zeile|Neue Zeilennummer eingeben|1");
    EXPECT_EQ(caretAfter(" 2 Zeilen"), 4);
    EXPECT_EQ(asked, "Gehe zu Zeile|Neue Zeilennummer eingeben|3");
    // Line 1, nothing, a cancel and words do nothing.
    for (const char* answer : {"1", "", "Zeile", "0", "-4"}) EXPECT_EQ(caretAfter(answer), 4);
    // The last line without CR LF and lines past the end: the end of the text.
    EXPECT_EQ(caretAfter("4"), 14);
    EXPECT_EQ(caretAfter("2"), 4);
    EXPECT_EQ(caretAfter("1e3"), 14);
}

TEST(LeadingNumber, ReadsAsTheClassicValDoes) {
    EXPECT_EQ(LeadingNumber(" 1 2abc"), 12);
    EXPECT_EQ(LeadingNumber("-3.5"), -3.5);
    EXPECT_EQ(LeadingNumber("2E2x"), 200);
    EXPECT_EQ(LeadingNumber("7e"), 7);
    EXPECT_EQ(LeadingNumber(".5"), 0.5);
    EXPECT_EQ(LeadingNumber("&H10"), 0);
    EXPECT_EQ(LeadingNumber("1e999"), 0);
}

TEST(HelpWord, IsTheWordAroundTheCaret) {
    EXPECT_EQ(HelpWordAt("", 0), "");
    EXPECT_EQ(HelpWordAt("MOV A,#1", 2), "MOV");
    EXPECT_EQ(HelpWordAt("MOV A,#1", 5), "A");
    EXPECT_EQ(HelpWordAt("NOP\r\nRET", 3), "NOP");
    EXPECT_EQ(HelpWordAt("NOP\r\nRET", 5), "RET");
    EXPECT_EQ(HelpWordAt("x=(DJNZ);", 5), "DJNZ");
    // At the end of a text that ends in a delimiter the word is empty; the
    // text's last character otherwise always belongs to the word.
    EXPECT_EQ(HelpWordAt("MOV A,", 6), "");
    EXPECT_EQ(HelpWordAt("MOV,", 1), "MOV,");
    EXPECT_EQ(HelpWordAt("MOV", 99), "MOV");
}

}  // namespace
}  // namespace korvex
