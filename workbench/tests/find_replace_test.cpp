#include "workbench/find_replace.h"

#include <gtest/gtest.h>

#include "testing/scripted_host.h"
#include "workbench/plain_text_control.h"

namespace korvex {
namespace {

class FindTest : public ::testing::Test {
  protected:
    FindBoxes boxes(const std::string& find, const std::string& replace = "") const {
        FindBoxes b;
        b.findText = find;
        b.replaceText = replace;
        return b;
    }
    std::string lastBox() const { return host.boxes.empty() ? "" : host.boxes.back().text; }

    PlainTextControl box;
    EditorFlags flags;
    FindState state;
    ScriptedHost host;
    FindReplace find{state, flags, host};
};

TEST_F(FindTest, TermsTranslateTabsAndLineEndsAndShowThemBack) {
    const std::pair<std::string, std::string> terms[] = {
        {"^t (Tabulator)", "\t"},
        {" ^p (Absatzmarke) ", "\r\n"},
        {"^t (Tabulator)^p (Absatzmarke)", "\t\r\n"},
        {"^p (Absatzmarke)^t (Tabulator)", "\r\n\t"},
        {"mov^ta^p", "mov\ta\r\n"},
    };
    for (const auto& [typed, meant] : terms) EXPECT_EQ(translateSearchTerm(typed), meant) << typed;
    // A replacement turns "^t" into a tab, but a "^p" inside it stays.
    EXPECT_EQ(translateReplacement("^p (Absatzmarke)"), "\r\n");
    EXPECT_EQ(translateReplacement("a^pb"), "a^pb");
    EXPECT_EQ(translateReplacement("^t^p"), "\t^p");
    EXPECT_EQ(shownTerm("\r\n"), "^p (Absatzmarke)");
    EXPECT_EQ(shownTerm("\t\r\n"), "^t^p");
    EXPECT_EQ(shownTerm("mov\ta"), "mov^ta");
}

TEST_F(FindTest, OpeningOnTwoLinesSearchesTheFirstInsideThem) {
    box.SetText("mov\ta,#1\r\nnop\r\nret");
    box.Select(0, 13);
    const FindOpening opening = openFindDialog(state, box);
    EXPECT_EQ(opening.term, "mov^ta,#1");
    EXPECT_TRUE(opening.selectEnabled);
    EXPECT_EQ(state.FindSelectChecked, 1);
    EXPECT_EQ(state.FindEnd, 13);
    box.SetSelStart(2);
    EXPECT_FALSE(openFindDialog(state, box).selectEnabled);
    EXPECT_EQ(state.FindSelectChecked, 0);
}

TEST_F(FindTest, TheSearchGoesRoundTheEndOnceAndSaysWhenItIsBackWhereItBegan) {
    box.SetText("nop\r\nmov a,r0\r\nmov r0,a\r\nret");
    box.SetSelStart(20);
    openFindDialog(state, box);
    FindOutcome outcome = find.FindButton(box, boxes("MOV"));  // case ignored
    EXPECT_TRUE(outcome.hit);
    EXPECT_EQ(box.SelStart(), 5);  // only before the start: wraps silently
    EXPECT_TRUE(host.boxes.empty());
    // F3 starts its pass here, and the next hit lies past it.
    ASSERT_TRUE(find.FindNext(box, false, &outcome));
    EXPECT_TRUE(outcome.backToStart);
    EXPECT_EQ(lastBox(), "Der angegebene Bereich wurde durchsucht.");
    EXPECT_EQ(box.SelStart(), 5);
    EXPECT_EQ(box.SelLength(), 3);

    // F3 from the top: every hit once, then the message and back.
    state = FindState{};
    state.SearchText = "mov";
    box.SetSelStart(0);
    find.FindNext(box, false, &outcome);
    EXPECT_EQ(box.SelStart(), 5);
    find.FindNext(box, false, &outcome);
    EXPECT_EQ(box.SelStart(), 15);
    host.boxes.clear();
    find.FindNext(box, false, &outcome);
    EXPECT_TRUE(outcome.backToStart);
    EXPECT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(box.SelStart(), 0);
    state.SearchText.clear();
    EXPECT_FALSE(find.FindNext(box, false));  // nothing to search: the dialog opens

    // Whole words and exact case; a term that isn't there.
    FindBoxes word = boxes("r0");
    word.wholeWord = true;
    box.SetText("mov ar0,a\r\nmov r0,a");
    state.FindWrapped = false;
    box.SetSelStart(0);
    EXPECT_TRUE(find.FindButton(box, word).hit);
    EXPECT_EQ(box.SelStart(), 15);
    FindBoxes exact = boxes("MOV");
    exact.matchCase = true;
    state.FindWrapped = false;
    EXPECT_TRUE(find.FindButton(box, exact).backToStart);
    EXPECT_EQ(lastBox(), "\"MOV\" wurde nicht gefunden.");
    EXPECT_EQ(state.FindHistory, (std::vector<std::string>{"MOV", "r0"}));
    EXPECT_TRUE(find.FindButton(box, boxes("^p")).hit);
    EXPECT_EQ(box.SelText(), "\r\n");
}

TEST_F(FindTest, InsideASelectionTheFirstCharacterIsSkippedAndTheEndIsKept) {
    box.SetText("nop nop nop nop");
    box.Select(0, 11);
    openFindDialog(state, box);
    FindBoxes inside = boxes("nop");
    inside.selectionOnly = true;
    EXPECT_TRUE(find.FindButton(box, inside).hit);
    EXPECT_EQ(box.SelStart(), 4);
    EXPECT_TRUE(find.FindButton(box, inside).hit);
    EXPECT_EQ(box.SelStart(), 8);
    EXPECT_TRUE(find.FindButton(box, inside).backToStart);
    EXPECT_EQ(lastBox(), "Der angegebene Bereich wurde durchsucht.");
    EXPECT_EQ(box.SelLength(), 11);
}

TEST_F(FindTest, ReplaceTakesOnlyAnExactHitAndTheReplacementAsTyped) {
    box.SetText("Nop\r\nnop\r\nnop");
    box.Select(0, 3);
    find.Replace(box, boxes("nop", "^t"));  // "Nop" differs in case: skipped
    EXPECT_EQ(box.Text(), "Nop\r\nnop\r\nnop");
    EXPECT_EQ(box.SelStart(), 5);
    find.Replace(box, boxes("nop", "ret^t"));
    EXPECT_EQ(box.Text(), "Nop\r\nret^t\r\nnop");
    EXPECT_EQ(box.SelStart(), 12);
}

TEST_F(FindTest, ReplaceAllCountsMovesTheSelectionAndUndoesOnce) {
    box.SetText("\tmov a,b\r\n\tmov b,a\r\n\tnop");
    box.Select(10, 9);  // the second line
    EXPECT_EQ(find.ReplaceAll(box, boxes("^t", "    ")), 3);
    EXPECT_EQ(box.Text(), "    mov a,b\r\n    mov b,a\r\n    nop");
    // The selection moved with the text before it, and grew with its hit
    // (to behind the LF: a selection never ends inside a line end).
    EXPECT_EQ(box.SelStart(), 13);
    EXPECT_EQ(box.SelLength(), 13);
    EXPECT_EQ(lastBox(), "Der angegebene Bereich wurde durchsucht. Es wurden 3 Begriffe ersetzt.");
    EXPECT_FALSE(flags.SuspendChange);

    // Shorter replacements step back, and a "^p" stays as typed.
    EXPECT_EQ(find.ReplaceAll(box, boxes("    ", "a^pb")), 3);
    EXPECT_EQ(box.Text().substr(0, 12), "a^pbmov a,b\r");
    find.UndoReplaceAll(box);
    EXPECT_EQ(box.Text(), "    mov a,b\r\n    mov b,a\r\n    nop");
    EXPECT_EQ(find.ReplaceAll(box, boxes("    ", "")), 3);
    EXPECT_EQ(box.Text(), "mov a,b\r\nmov b,a\r\nnop");

    // Inside a selection the end grows with every hit.
    box.SetText("x x x x");
    box.Select(0, 5);
    FindBoxes inside = boxes("x", "yy");
    inside.selectionOnly = true;
    EXPECT_EQ(find.ReplaceAll(box, inside), 3);
    EXPECT_EQ(box.Text(), "yy yy yy x");
    EXPECT_EQ(box.SelLength(), 8);
    EXPECT_EQ(find.ReplaceAll(box, boxes("q", "r")), 0);
    EXPECT_EQ(lastBox(),
              "Der angegebene Bereich wurde durchsucht. Der Suchbegriff wurde nicht gefunden.");
}

}  // namespace
}  // namespace korvex
