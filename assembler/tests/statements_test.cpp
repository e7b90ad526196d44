// Statements on their faulty and unusual inputs, the expression evaluator and
// the forms of our own language. The plain instruction forms are checked
// against an independent assembler elsewhere.

#include <gtest/gtest.h>

#include "assembler_fixture.h"

namespace korvex::testing {
namespace {

class StatementsTest : public AssemblerFixture {
  protected:
    struct Case {
        const char* statement;
        const char* bytes;
        int finding;
    };
    // Assembles each statement alone at address 0.
    void expectAll(const std::vector<Case>& cases) {
        for (const auto& [statement, bytes, finding] : cases) {
            ASSERT_EQ(assembleLines({statement}), RunOutcome::Completed) << statement;
            EXPECT_EQ(bytesAt(0), bytes) << statement;
            EXPECT_EQ(findingAt(0), finding) << statement;
        }
    }
};

// Faulty operands keep their place and report the later check.
TEST_F(StatementsTest, EachStatementAloneGivesItsBytesAndFinding) {
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
        {"MOV A,A", "00 00", 1},
        {"ANL 30h,#300", "53 30 2C", 13},
        {"CJNE A,#300,HIER", "B4 2C FD", 13},
        {"NOP 1", "00", 1},
        {"END X", "80 FE", 32},
        {"MOV,A 5", "", 32},  // a comma before the first blank
        // Forms of our own language.
        {"CALL @A+DPTR", "73", 0},
        {"JMP 1234h", "02 12 34", 0},
        {"CALL 1234h", "12 12 34", 0},
        {"END", "80 FE", 0},
        {"a=1", "E5 01", 0},
        {"a=#1", "74 01", 0},
        {"r0 = #3", "78 03", 0},
        {"30h = 31h", "85 31 30", 0},
        // An unknown bit name: the bit operand reader leaves the bit context's
        // 8 in the value, and every user that stores the value before its
        // class check stores 08h with its finding.
        {"CPL 101B", "B2 0D", 0},  // the bit context adds 8 to a binary literal
        {"SETB 20h.8", "D2 00", 8},
        {"SETB 30h.1", "D2 00", 8},
        {"SETB XYZ", "D2 08", 8},
        {"ANL C,/XYZ", "B0 08", 8},
        {"CLR 0.3333333333", "C2 00", 8},
        // Expressions and notations.
        {"MOV A,#10-4-3", "74 03", 0},
        {"MOV A,#0-1", "74 FF", 0},  // subtraction is byte-oriented once
        {"MOV A,#", "00 00", 1},
        {"MOV A,#*5", "00 00", 39},
        {"MOV A,#5/0", "74 00", 40},
        {"MOV A,#UNKNOWN+1", "00 00", 7},
        {"MOV A,#1D2", "00 00", 1},
        {"MOV A,#AH", "74 0A", 0},
        {"MOV A,#111111111B", "00 00", 1},
        {"LJMP 101B", "02 00 0C", 0},  // the label context adds 7
        {"MOV A,#HIGH(1234H)", "74 12", 0},
        {"MOV A,#HIGH(ACC)", "74 E0", 0},     // a register name is its address whole
        {"MOV A,#LOW(1234H+1)", "00 00", 7},  // the operator split comes first
        {"MOV A,#LOW(1234H)+1", "74 35", 0},
        {"MOV A,#':'", "74 3A", 0},
        {"MOV A,#'x:NOP", "", 17},
        {"NOP : X {a:b", "00 00", 32},
        {"MOV DPTR,#'AB'", "90 41 42", 0},
        {"MOV A,#''", "74 00", 0},
        {"MOV A,#'ABC'", "", 12},
        {"MOV A,#'a'+'a'", "74 C2", 0},
        {"MOV A,#'\xE4'", "74 E4", 0},  // literals use the eight-bit code
    });
}

TEST_F(StatementsTest, ContextsChooseTheTables) {
    ASSERT_EQ(assembleLines({"#BYTE CNT=30h", "#CONST LIMIT=300", "MOV A,CNT", "LJMP CNT",
                             "SETB CNT", "MOV DPTR,#LIMIT", "MOV DPTR,#BEEFH", "ORG 100h",
                             "CNT:", "BEEFH:", "MOV DPTR,#HIER+5"}),
              RunOutcome::Completed);
    EXPECT_EQ(bytesAt(2), "E5 30");     // bytes before labels
    EXPECT_EQ(bytesAt(3), "02 01 00");  // labels first
    EXPECT_EQ(bytesAt(4), "D2 08");     // neither in the bit context
    EXPECT_EQ(bytesAt(5), "90 01 2C");
    EXPECT_EQ(bytesAt(6), "90 BE EF");  // numbers shadow names
    EXPECT_EQ(bytesAt(10), "90 01 05");

    ASSERT_EQ(assembleLines({"SETB later", "#BIT F=XYZ", "SETB F", "IF BIT XYZ", "NOP", "END IF",
                             "later: NOP"}),
              RunOutcome::Completed);
    EXPECT_EQ(bytesAt(0), "D2 08");  // labels don't evaluate in the bit context
    EXPECT_EQ(findingAt(1), 50);
    EXPECT_EQ(bytesAt(2), "D2 08");
    // The second pass encodes the IF again, so its offset is the unpatched 00.
    EXPECT_EQ(bytesAt(3), "30 08 00");
}

TEST_F(StatementsTest, ValuesThatCannotBeStoredEndTheRun) {
    // A negative immediate or a long target above FFFFh is a host overflow.
    EXPECT_EQ(assembleLines({"MOV A,#0-300"}), RunOutcome::Failed);
    EXPECT_EQ(host_.lastBoxTitle, "Fehler");
    EXPECT_NE(host_.lastBoxText.find("Sub: assembleSource"), std::string::npos);
    for (const char* statement : {"LJMP 10000h", "MOV DPTR,#10000h", "MOV A,#99999999999",
                                  "MOV A,#65536*65536", "SETB 20h.3333333333"}) {
        EXPECT_EQ(assembleLines({statement}), RunOutcome::Failed) << statement;
    }
    std::string endless = "MOV A,#1";
    for (int i = 0; i < 5000; ++i) endless += "+1";
    EXPECT_EQ(assembleLines({endless}), RunOutcome::Failed);
    EXPECT_NE(host_.lastBoxText.find("Nummer 28"), std::string::npos) << host_.lastBoxText;
    // The guard unwinds with the failure: a later expression evaluates again.
    ASSERT_EQ(assembleLines({"MOV A,#2+3"}), RunOutcome::Completed);
    EXPECT_EQ(bytesAt(0), "74 05");
}

TEST_F(StatementsTest, BranchesAndTheirReach) {
    // 128 bytes ahead of the next statement is one too far.
    ASSERT_EQ(assembleLines(
                  {"SJMP 130", "SJMP 131", "ORG 07FEh", "AJMP 0801h", "ORG 0FFDh", "AJMP 1001h"}),
              RunOutcome::Completed);
    EXPECT_EQ(bytesAt(0), "80 00");
    EXPECT_EQ(findingAt(0), 21);
    EXPECT_EQ(bytesAt(1), "80 7F");
    EXPECT_EQ(bytesAt(3), "01 01");
    EXPECT_EQ(findingAt(3), 0);
    EXPECT_EQ(findingAt(5), 5);

    ASSERT_EQ(
        assembleLines({"LJMP LATER", "JNZ LATER", "NOP", "LATER:", "SJMP LATER", "LJMP NOWHERE"}),
        RunOutcome::Completed);
    EXPECT_EQ(findings(), std::vector<std::string>{"1:7 ;>err6: unbekannter Befehl bzw. "
                                                   "Sprungziel nicht gefunden"});
    EXPECT_EQ(hexImage(), "02 00 06 70 01 00 80 FE 02 00 00");
}

TEST_F(StatementsTest, ImplicitCallLengthFollowsUseNotTheTarget) {
    // A call without mnemonic to a later label: ACALL form, two bytes in both passes.
    ASSERT_EQ(
        assembleLines({"TimerInit", "NOP", "TIMERINIT:", "Init Timer", "INITTIMER:", "Missing"}),
        RunOutcome::Completed);
    EXPECT_EQ(hexImage(), "11 03 00 11 05 00 00");
    EXPECT_EQ(findings(), std::vector<std::string>{"1:7 ;>err6: unbekannter Befehl bzw. "
                                                   "Sprungziel nicht gefunden"});
}

TEST_F(StatementsTest, OrgMovesTheCounterAndWarnsBackwards) {
    ASSERT_EQ(assembleLines({"ORG 10h", "NOP", "ORG 8", "NOP", "ORG NOWHERE", "NOP", "#   byte X"}),
              RunOutcome::Completed);
    EXPECT_EQ(addressAt(1), "0010");
    EXPECT_EQ(findingAt(2), 11);
    EXPECT_EQ(addressAt(3), "0008");
    EXPECT_EQ(findingAt(4), 9);
    EXPECT_EQ(addressAt(5), "0009");
    // A blank behind the hash: no directive, a faulty statement.
    EXPECT_EQ(findingAt(6), 29);
    EXPECT_EQ(bytesAt(6), "00");
}

TEST_F(StatementsTest, LinesLabelsAndVectors) {
    ASSERT_EQ(assembleLines({";", "", "  NOP ; a: b", "NOP : NOP",
                             "START:", "  START2 :", "Loop1:", "LOOP1:", "AB C:", ":", "NOP"}),
              RunOutcome::Completed);
    EXPECT_EQ(bytesAt(2), "00");  // the colon behind ";" is not seen
    EXPECT_EQ(bytesAt(3), "00 00");
    EXPECT_EQ(addressAt(4), "0003");
    EXPECT_EQ(findings(), std::vector<std::string>{"1:9 ;>err68 Label bereits definiert"});
    EXPECT_NE(report().find("START2: Zeile 1:7,"), std::string::npos) << report();
    EXPECT_NE(report().find("AB C: Zeile 1:10,"), std::string::npos) << report();
    // A lone ":" names nothing: its row goes to the next line.
    EXPECT_EQ(addressAt(9), "-");
    EXPECT_EQ(bytesAt(10), "00");

    ASSERT_EQ(assembleLines({"Exti0:", "RETI", "NOP", "EXTI0:", "NOP"}), RunOutcome::Completed);
    EXPECT_EQ(addressAt(0), "0003");
    EXPECT_EQ(addressAt(1), "0003");
    // Behind the vector: error 11, and the code moves back all the same.
    EXPECT_EQ(findingAt(3), 11);
    EXPECT_EQ(addressAt(4), "0003");
}

TEST_F(StatementsTest, VectorCountSurvivesARunWithoutDriver) {
    ASSERT_EQ(assembleLines({"NOP"}), RunOutcome::Completed);
    // The next run reads no driver: the label table is empty again, and its
    // first labels sit below the old count of three vectors, so they act as
    // vectors. The run has no vector row and so ends at the report.
    EXPECT_EQ(assemble("NOP\r\nFIRST:\r\nNOP\r\nFIRST:\r\nNOP\r\n"), RunOutcome::Failed);
    EXPECT_NE(host_.lastBoxText.find("Typen unvertr\xE4glich"), std::string::npos);
}

}  // namespace
}  // namespace korvex::testing
