// The encoding chain on its faulty and unusual inputs; the plain forms are
// checked against an independent assembler elsewhere.

#include <gtest/gtest.h>

#include "assembler_fixture.h"

namespace korvex::testing {
namespace {

class EncodingTest : public AssemblerFixture {
  protected:
    // Assembles one statement at address 0 and returns its bytes and finding.
    std::pair<std::string, int> one(const std::string& statement) {
        EXPECT_EQ(assembleLines({statement}), RunOutcome::Completed) << statement;
        return {bytesOfRow(0), markerNumber(0)};
    }
    using Case = std::tuple<const char*, const char*, int>;
    void expectAll(const std::vector<Case>& cases) {
        for (const auto& [statement, bytes, error] : cases) {
            const auto [gotBytes, gotError] = one(statement);
            EXPECT_EQ(gotBytes, bytes) << statement;
            EXPECT_EQ(gotError, error) << statement;
        }
    }
};

TEST_F(EncodingTest, FaultyOperandsKeepTheirPlaceAndReportTheLaterCheck) {
    expectAll({
        {"MOV A,#256", "74 00", 31},
        {"MOV 300,#400", "75 2C 90", 4},
        {"XCH A,#5", "C4 00", 1},
        {"DEC DPTR", "14 00", 1},
        {"ADD B,#1", "00", 1},
        {"PUSH A", "C0 00", 7},
        {"MUL A", "00", 1},
        {"SETB A", "00", 1},
        {"DA 20h.1", "00 01", 1},
        {"MOV R0,R1", "00 00", 1},
        {"MOV A,A", "00 00", 1},
        {"ANL 30h,#300", "53 30 2C", 13},
        {"CJNE A,#300,HIER", "B4 2C FD", 13},
        {"NOP 1", "00", 1},
        {"END", "80 FE", 0},
        {"END X", "80 FE", 32},
    });
}

TEST_F(EncodingTest, BlankBehindTheHashFailsAsAStatementOfItsOwnRow) {
    // The directive code takes the line's row, the statement the next one.
    ASSERT_EQ(assembleLines({"#   byte X"}), RunOutcome::Completed);
    EXPECT_EQ(code(0), "");
    EXPECT_EQ(markerNumber(1), 29);
    EXPECT_EQ(bytesOfRow(1), "00");
    EXPECT_EQ(row(1).position, row(0).position);
}

TEST_F(EncodingTest, CaseAndBlanksInOperandsDoNotMatter) {
    expectAll({
        {"mov a , # 5", "74 05", 0},
        {"Mov\tDptr,#1234h", "90 12 34", 0},
        {"CALL @A+DPTR", "73", 0},
        {"LCALL @A+DPTR", "73", 0},
        {"JMP 1234h", "02 12 34", 0},
        {"CALL 1234h", "12 12 34", 0},
    });
}

TEST_F(EncodingTest, AssignmentFormIsMov) {
    expectAll({
        {"a=1", "E5 01", 0},
        {"a=#1", "74 01", 0},
        {"r0 = #3", "78 03", 0},
        {"30h = 31h", "85 31 30", 0},
    });
}

TEST_F(EncodingTest, BitOperands) {
    expectAll({
        {"SETB 20h.3", "D2 03", 0},
        {"SETB 2Fh.7", "D2 7F", 0},
        {"CLR 0E0h.7", "C2 E7", 0},
        {"CPL 101B", "B2 0D", 0},  // bit context adds 8 to a binary literal
        {"SETB 20h.8", "D2 00", 8},
        {"SETB 30h.1", "D2 00", 8},
        {"MOV C,21h.0", "A2 08", 0},
        {"ANL C,/22h.1", "B0 11", 0},
        {"JB 20h.0,HIER", "20 00 FD", 0},
    });
}

TEST_F(EncodingTest, RelativeAndAbsoluteRanges) {
    // 128 bytes ahead of the next statement is one too far.
    ASSERT_EQ(assembleLines({"SJMP 130"}), RunOutcome::Completed);
    EXPECT_EQ(bytesOfRow(0), "80 00");
    EXPECT_EQ(markerNumber(0), 21);
    EXPECT_FALSE(row(0).retry);  // final: no second look
    ASSERT_EQ(assembleLines({"SJMP 129"}), RunOutcome::Completed);
    EXPECT_EQ(bytesOfRow(0), "80 7F");

    ASSERT_EQ(assembleLines({"ORG 07FEh", "AJMP 0801h"}), RunOutcome::Completed);
    EXPECT_EQ(bytesOfRow(1), "01 01");
    EXPECT_EQ(markerNumber(1), 0);
    ASSERT_EQ(assembleLines({"ORG 07FDh", "AJMP 0801h"}), RunOutcome::Completed);
    EXPECT_EQ(markerNumber(1), 5);
}

TEST_F(EncodingTest, ForwardReferencesHealInTheSecondPass) {
    ASSERT_EQ(assembleLines({"LJMP LATER", "JNZ LATER", "NOP", "LATER:", "SJMP LATER"}),
              RunOutcome::Completed);
    EXPECT_EQ(markers(), std::vector<std::string>{});
    EXPECT_EQ(bytesOfRow(0), "02 00 06");
    EXPECT_EQ(bytesOfRow(1), "70 01");
    EXPECT_EQ(bytesOfRow(4), "80 FE");
}

TEST_F(EncodingTest, UnresolvedTargetStaysMarkedWithItsLength) {
    ASSERT_EQ(assembleLines({"LJMP NOWHERE", "NOP"}), RunOutcome::Completed);
    EXPECT_TRUE(row(0).retry);
    EXPECT_EQ(markerNumber(0), 6);
    EXPECT_EQ(bytesOfRow(0), "02 00 00");
    EXPECT_EQ(image(), std::string("\x02\x00\x00\x00", 4));
}

TEST_F(EncodingTest, ImplicitCallLengthFollowsUseNotTheTarget) {
    // A call without mnemonic to a later label: ACALL form, two bytes in both passes.
    ASSERT_EQ(assembleLines({"TimerInit", "NOP", "TIMERINIT:", "RET"}), RunOutcome::Completed);
    EXPECT_EQ(markers(), std::vector<std::string>{});
    EXPECT_EQ(bytesOfRow(0), "11 03");
    EXPECT_EQ(row(0).statement, "ACALL TimerInit");

    ASSERT_EQ(assembleLines({"Init Timer", "INITTIMER:"}), RunOutcome::Completed);
    EXPECT_EQ(bytesOfRow(0), "11 02");

    ASSERT_EQ(assembleLines({"Missing"}), RunOutcome::Completed);
    EXPECT_EQ(markerNumber(0), 6);  // the second pass sees "ACALL Missing"
}

TEST_F(EncodingTest, OrgMovesTheCounterAndWarnsBackwards) {
    ASSERT_EQ(assembleLines({"ORG 10h", "NOP", "ORG 8", "NOP", "ORG NOWHERE", "NOP"}),
              RunOutcome::Completed);
    EXPECT_EQ(bytesOfRow(1), "00");
    EXPECT_EQ(code(1).substr(0, 4), "0010");
    EXPECT_EQ(markerNumber(2), 11);
    EXPECT_EQ(code(3).substr(0, 4), "0008");
    EXPECT_EQ(markerNumber(4), 9);
    EXPECT_EQ(code(5).substr(0, 4), "0009");
}

TEST_F(EncodingTest, ValuesThatCannotBeStoredEndTheRun) {
    // A negative immediate or a long target above FFFFh is a host overflow.
    EXPECT_EQ(assembleLines({"MOV A,#0-300"}), RunOutcome::Failed);
    EXPECT_EQ(host_.lastBoxTitle, "Fehler");
    EXPECT_NE(host_.lastBoxText.find("Sub: assembleSource"), std::string::npos);
    EXPECT_EQ(assembleLines({"LJMP 10000h"}), RunOutcome::Failed);
    EXPECT_EQ(assembleLines({"MOV DPTR,#10000h"}), RunOutcome::Failed);
    // A bit number of many digits passes the text test ("3..." sorts below "7").
    EXPECT_EQ(assembleLines({"SETB 20h.3333333333"}), RunOutcome::Failed);
    ASSERT_EQ(assembleLines({"CLR 0.3333333333"}), RunOutcome::Completed);
    EXPECT_EQ(markerNumber(0), 8);
}

}  // namespace
}  // namespace korvex::testing
