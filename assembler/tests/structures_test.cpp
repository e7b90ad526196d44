// IF, FOR and LOOP: the bytes each construct compiles to, the patched offsets
// and the findings. What the code does when it runs is checked in the
// simulator test.

#include <gtest/gtest.h>

#include "assembler_fixture.h"
#include "base/text.h"

namespace korvex::testing {
namespace {

class StructuresTest : public AssemblerFixture {
  protected:
    std::string hexImage(const std::vector<std::string>& lines) {
        EXPECT_EQ(assembleLines(lines), RunOutcome::Completed);
        std::string out;
        for (char c : image())
            out += (out.empty() ? "" : " ") + hexDigits(static_cast<unsigned char>(c), 2);
        return out;
    }
    std::vector<int> findings() const {
        std::vector<int> numbers;
        for (int i = 0; i + rowOffset_ < static_cast<int>(assembler_->state().sourceTable.size());
             ++i) {
            if (markerNumber(i) != 0) numbers.push_back(markerNumber(i));
        }
        return numbers;
    }
};

TEST_F(StructuresTest, IfElseIfElse) {
    EXPECT_EQ(hexImage({"IF A=#0 THEN", "NOP", "END IF"}), "70 01 00");
    EXPECT_EQ(hexImage({"IF 20h.3", "NOP", "END IF"}), "30 03 01 00");
    EXPECT_EQ(hexImage({"IF R0=#5 THEN", "NOP", "ELSE", "NOP", "END IF"}), "B8 05 03 00 80 01 00");
    EXPECT_EQ(hexImage({"IF NOTBIT TR1", "NOP", "ELSEIF BITC THEN", "NOP", "ELSEIF A>#0", "NOP",
                        "END IF"}),
              "20 8E 03 00 80 08 50 03 00 80 03 60 01 00");
    EXPECT_EQ(findings(), std::vector<int>{});
    EXPECT_EQ(hexImage({"IF A=#0 THENRET", "NOP"}), "70 01 22 00");
}

TEST_F(StructuresTest, IfFindings) {
    hexImage({"IF A=#0", "ELSE", "NOP", "ELSE", "END IF"});
    EXPECT_EQ(markerNumber(3), 35);
    EXPECT_EQ(image().size(), 7u);  // the second ELSE still emits its jump
    hexImage({"ELSE", "END IF", "ELSEIF A=#0"});
    EXPECT_EQ(findings(), (std::vector<int>{22, 22, 38}));
    hexImage({"IF A=#0", "ELSE", "ELSEIF A>#0", "END IF"});
    EXPECT_EQ(markerNumber(2), 37);
    hexImage({"IF A<#3", "IF R0>#1", "END IF", "END IF"});
    EXPECT_EQ(findings(), (std::vector<int>{32, 32}));
}

TEST_F(StructuresTest, ExitIfLeavesTheSurroundingIf) {
    hexImage({"IF A=#0", "EXIT IF", "END IF"});
    EXPECT_EQ(markerNumber(1), 25);
    EXPECT_EQ(hexImage({"IF A=#0", "IF A>#0", "EXIT IF", "NOP", "END IF", "NOP", "END IF"}),
              "70 06 60 03 80 02 00 00");
    // With the bit form of the exit condition the jump leaves the IF it stands in.
    EXPECT_EQ(hexImage({"IF A=#0", "IF BIT TR1 THENEXITIF", "NOP", "END IF"}), "70 04 20 8E 01 00");
    EXPECT_EQ(hexImage({"IF A=#0", "IF R2=#9 THENEXITIF", "NOP", "END IF"}),
              "70 06 BA 09 02 80 01 00");
}

TEST_F(StructuresTest, LongThenPartMarksTheIfLine) {
    std::vector<std::string> lines = {"IF A=#0"};
    for (int i = 0; i < 128; ++i) lines.push_back("NOP");
    lines.push_back("END IF");
    hexImage(lines);
    EXPECT_EQ(row(0).marker,
              ";>err62 relativer Adressbereich \xFC"
              "berschritten");
    EXPECT_EQ(row(129).marker, "");
}

TEST_F(StructuresTest, ExitJumpOutOfReachIsMarked) {
    std::vector<std::string> lines = {"LOOP", "EXIT LOOP"};
    for (int i = 0; i < 130; ++i) lines.push_back("NOP");
    lines.push_back("END LOOP");
    hexImage(lines);
    EXPECT_EQ(row(1).marker,
              ";>err62 relativer Adressbereich \xFC"
              "berschritten")
        << row(1).marker;
}

TEST_F(StructuresTest, ForAndNext) {
    EXPECT_EQ(hexImage({"FOR R1=#3", "NOP", "NEXT"}), "79 03 00 D9 FD");
    EXPECT_EQ(hexImage({"FOR R1", "NOP", "NEXT"}), "00 D9 FD");
    EXPECT_EQ(hexImage({"FOR 30h = #10", "NOP", "NEXT"}), "75 30 0A 00 D5 30 FC");
    EXPECT_EQ(hexImage({"FOR R0=#2", "IF A=#0 THENEXITFOR", "EXIT FOR", "NEXT", "NOP"}),
              "78 02 60 04 80 02 D8 FA 00");
    hexImage({"FOR A=#3", "NEXT"});
    EXPECT_EQ(row(0).marker, ";>err63 ung\xFCltige Operandenkombination");
    EXPECT_EQ(markerNumber(1), 23);
    hexImage({"EXIT FOR", "EXIT LOOP", "EXIT WHILE", "NEXT", "END LOOP", "LOOP X"});
    EXPECT_EQ(findings(), (std::vector<int>{26, 27, 15, 23, 24, 20}));
}

TEST_F(StructuresTest, Loops) {
    EXPECT_EQ(hexImage({"LOOP", "NOP", "END LOOP"}), "00 80 FD");
    EXPECT_EQ(hexImage({"LOOP", "NOP", "UNTIL A=#0"}), "00 70 FD");
    EXPECT_EQ(hexImage({"LOOP WHILE BITC", "NOP", "END LOOP"}), "50 03 00 80 FB");
    EXPECT_EQ(hexImage({"LOOP", "IF A=#0 THENEXITLOOP", "EXIT LOOP", "END LOOP", "NOP"}),
              "60 04 80 02 80 FA 00");
    EXPECT_EQ(hexImage({"LOOP", "NOP", "UNTIL IF"}).substr(0, 2), "00");
    std::vector<std::string> lines = {"LOOP"};
    for (int i = 0; i < 129; ++i) lines.push_back("NOP");
    lines.push_back("UNTIL A=#0");
    hexImage(lines);
    EXPECT_EQ(markerNumber(130), 21);
}

TEST_F(StructuresTest, PlainLoopRepatchesAnEarlierWhileOfItsDepth) {
    // Kept as the language has it: the row of a depth remembers its WHILE.
    EXPECT_EQ(hexImage({"LOOP WHILE A=#0", "END LOOP", "LOOP", "NOP", "END LOOP"}),
              "70 05 80 FC 00 80 FD");
}

TEST_F(StructuresTest, EqualConditionReadsItsOffsetBackAsDecimalInTheSecondPass) {
    // The forward constant makes the IF row a retried one; its patched offset
    // 1Ch comes back as 1.
    std::vector<std::string> lines = {"IF R0=#LATER"};
    for (int i = 0; i < 28; ++i) lines.push_back("NOP");
    lines.push_back("END IF");
    lines.push_back("LATER:");
    hexImage(lines);
    EXPECT_EQ(bytesOfRow(0), "B8 1F 01");
}

TEST_F(StructuresTest, Tables) {
    EXPECT_EQ(hexImage({"DB 'Ab',0", "db 'a,b'", "DB 'a b'", "DB 1, 2", "DW 1234h", "DW 'A'",
                        "DW 'AB'", "DB LATER", "LATER:", "DB"}),
              "41 62 00 61 2C 62 61 20 62 01 02 34 12 41 00 41 00 42 00 14");
    EXPECT_EQ(findings(), std::vector<int>{});
    EXPECT_EQ(code(9), "");  // DB alone: no code text
    hexImage({"DB 'a'b", "DB 'a", "DB 300", "DW 70000", "DB NOWHERE,1"});
    EXPECT_EQ(markerNumber(0), 19);
    EXPECT_EQ(markerNumber(1), 19);
    EXPECT_EQ(row(2).marker, "; Fehler: 300 > FFh");
    EXPECT_EQ(bytesOfRow(2), "2C");
    EXPECT_EQ(row(3).marker, "; 70000 > FFFFh");
    EXPECT_EQ(bytesOfRow(3), "70 11");
    EXPECT_EQ(row(4).marker, ";>err7 NOWHERE nicht erkannt.");
    EXPECT_TRUE(row(4).retry);
}

}  // namespace
}  // namespace korvex::testing
