// Lines and statements: comments, labels, statement boundaries, character
// literals and the split into tokens.

#include <gtest/gtest.h>

#include "assembler_fixture.h"

namespace korvex::testing {
namespace {

using LinePreparationTest = AssemblerFixture;

TEST_F(LinePreparationTest, EveryLineKeepsARowAndItsPosition) {
    ASSERT_EQ(assembleLines({";", "", "  NOP ; a: b", "NOP : NOP", "START:", "  START2 :"}),
              RunOutcome::Completed);
    const auto& state = assembler_->state();
    // Code texts are cleaned at the end of a run: tab-only rows become empty.
    EXPECT_EQ(code(0), "");
    EXPECT_EQ(code(1), "");
    EXPECT_EQ(row(2).position, "1:4");
    EXPECT_EQ(row(2).statement, "NOP");  // the colon behind ";" is not seen
    // Two statements on a line: two rows, the second without source text.
    EXPECT_EQ(row(3).position, "1:5");
    EXPECT_EQ(row(4).position, "1:5");
    EXPECT_EQ(row(3).sourceText, "NOP : NOP");
    EXPECT_EQ(row(4).sourceText, "");
    EXPECT_EQ(code(5), "0003");
    const int start2 = state.labelTable.find("START2");  // blank before the colon
    ASSERT_GE(start2, 0);
    EXPECT_EQ(state.labelTable.at(start2, 3), "START2: Zeile 1:7");
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
    ASSERT_EQ(assembleLines({"MOV A,#'\xE4'"}), RunOutcome::Completed);
    EXPECT_EQ(bytesOfRow(0), "74 E4");
}

TEST_F(LinePreparationTest, CommaBeforeTheFirstBlankIsASyntaxError) {
    ASSERT_EQ(assembleLines({"MOV,A 5"}), RunOutcome::Completed);
    EXPECT_EQ(markerNumber(0), 32);
    EXPECT_FALSE(row(0).retry);
}

TEST_F(LinePreparationTest, LabelsAreOneNameSpaceAndDefinedOnce) {
    ASSERT_EQ(assembleLines({"Loop1:", "NOP", "LOOP1:", "AB C:", ":", "NOP"}),
              RunOutcome::Completed);
    EXPECT_EQ(row(2).marker, ";>err68 Label bereits definiert");
    EXPECT_EQ(code(2), "");  // the second definition has no code text
    const auto& labels = assembler_->state().labelTable;
    ASSERT_GE(labels.find("ABC"), 0);
    EXPECT_EQ(labels.at(labels.find("ABC"), 3), "AB C: Zeile 1:5");
    // A lone ":" names nothing: its row goes to the next line.
    EXPECT_EQ(row(4).sourceText, "NOP");
    EXPECT_EQ(row(4).position, "1:7");
}

TEST_F(LinePreparationTest, VectorNamesMoveTheCode) {
    ASSERT_EQ(assembleLines({"Exti0:", "RETI", "NOP", "EXTI0:", "NOP"}), RunOutcome::Completed);
    EXPECT_EQ(code(0), "0003");
    EXPECT_EQ(code(1), "0003\t32");
    // Behind the vector: error 11, and the code moves back all the same.
    EXPECT_EQ(row(3).marker.substr(0, 8), ";>err11:");
    EXPECT_EQ(code(4), "0003\t00");
}

TEST_F(LinePreparationTest, VectorCountSurvivesARunWithoutDriver) {
    ASSERT_EQ(assembleLines({"NOP"}), RunOutcome::Completed);
    // The next run reads no driver: the label table is empty again, and its
    // first labels sit below the old count of three vectors, so they act as
    // vectors. The run has no vector row and so ends at the report.
    ASSERT_EQ(assemble("NOP\r\nFIRST:\r\nNOP\r\nFIRST:\r\nNOP\r\n"), RunOutcome::Failed);
    EXPECT_EQ(row(3).marker.substr(0, 8), ";>err11:");
    EXPECT_EQ(code(4).substr(0, 4), "0001");
    EXPECT_NE(host_.lastBoxText.find("Typen unvertr\xE4glich"), std::string::npos);
}

}  // namespace
}  // namespace korvex::testing
