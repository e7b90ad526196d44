// Lines and statements: comments, labels, statement boundaries, character
// literals and the split into tokens.

#include <gtest/gtest.h>

#include "assembler/tests/assembler_fixture.h"

namespace korvex::testing {
namespace {

using LinePreparationTest = AssemblerFixture;

TEST_F(LinePreparationTest, EveryLineKeepsARowAndItsPosition) {
    ASSERT_EQ(assembleLines({";", "", "  NOP ; a: b", "NOP : NOP", "START:", "  START2 :"}),
              RunOutcome::Completed);
    const auto& state = assembler_->state();
    // Code texts are cleaned at the end of a run: tab-only rows become empty.
    EXPECT_EQ(state.codeText[0], "");
    EXPECT_EQ(state.codeText[1], "");
    EXPECT_EQ(row(2).position, "1:3");
    EXPECT_EQ(row(2).statement, "NOP");  // the colon behind ";" is not seen
    // Two statements on a line: two rows, the second without source text.
    EXPECT_EQ(row(3).position, "1:4");
    EXPECT_EQ(row(4).position, "1:4");
    EXPECT_EQ(row(3).sourceText, "NOP : NOP");
    EXPECT_EQ(row(4).sourceText, "");
    EXPECT_EQ(state.codeText[5], "0003");
    EXPECT_EQ(state.labelTable.at(2, 0), "START2");  // blank before the colon
    EXPECT_EQ(state.labelTable.at(2, 3), "START2: Zeile 1:6");
}

TEST_F(LinePreparationTest, QuotesAndBracesHideColons) {
    ASSERT_EQ(assembleLines({"MOV A,#':'"}), RunOutcome::Completed);
    EXPECT_EQ(bytesOfRow(0), "74 3A");
    ASSERT_EQ(assembleLines({"MOV A,#'x:NOP"}), RunOutcome::Completed);
    EXPECT_EQ(markerNumber(0), 17);
    ASSERT_EQ(assembleLines({"NOP : X {a:b"}), RunOutcome::Completed);
    EXPECT_EQ(markerNumber(0), 32);
}

TEST_F(LinePreparationTest, CharacterLiteralsFoldToNumbers) {
    ASSERT_EQ(assembleLines({"MOV DPTR,#'AB'", "MOV A,#''", "MOV A,#'ABC'", "MOV A,#'a'+'a'"}),
              RunOutcome::Completed);
    EXPECT_EQ(bytesOfRow(0), "90 41 42");
    EXPECT_EQ(bytesOfRow(1), "74 00");
    EXPECT_EQ(markerNumber(2), 12);
    EXPECT_EQ(bytesOfRow(3), "74 C2");
}

TEST_F(LinePreparationTest, LiteralsUseTheEightBitCode) {
    // ä is E4h in the system's code page.
    ASSERT_EQ(assemble("MOV A,#'\xE4'\r\n"), RunOutcome::Completed);
    EXPECT_EQ(bytesOfRow(0), "74 E4");
}

TEST_F(LinePreparationTest, CommaBeforeTheFirstBlankIsASyntaxError) {
    ASSERT_EQ(assembleLines({"MOV,A 5"}), RunOutcome::Completed);
    EXPECT_EQ(markerNumber(0), 32);
    EXPECT_TRUE(row(0).retryMark.empty());
}

TEST_F(LinePreparationTest, LabelsAreOneNameSpaceAndDefinedOnce) {
    ASSERT_EQ(assembleLines({"Loop1:", "NOP", "LOOP1:", "AB C:", ":", "NOP"}),
              RunOutcome::Completed);
    EXPECT_EQ(row(2).marker, ";>err68 Label bereits definiert");
    EXPECT_EQ(assembler_->state().codeText[2], "");  // the second definition has no code text
    const auto& labels = assembler_->state().labelTable;
    EXPECT_EQ(labels.at(2, 0), "ABC");
    EXPECT_EQ(labels.at(2, 3), "AB C: Zeile 1:4");
    // A lone ":" names nothing: its row goes to the next line.
    EXPECT_EQ(row(4).sourceText, "NOP");
    EXPECT_EQ(row(4).position, "1:6");
}

TEST_F(LinePreparationTest, VectorRowsMoveTheCode) {
    // Vector rows come from a driver; here they are put in as a driver would,
    // and the run keeps the count of the last driver read.
    auto& state = assembler_->state();
    state.vectorCount = 2;
    // Without a driver in this run, label rows below the count act as vectors.
    ASSERT_EQ(assembleLines({"NOP", "FIRST:", "NOP", "FIRST:", "NOP"}), RunOutcome::Completed);
    EXPECT_EQ(row(3).marker.substr(0, 8), ";>err11:");
    EXPECT_EQ(state.codeText[4].substr(0, 4), "0001");
}

}  // namespace
}  // namespace korvex::testing
