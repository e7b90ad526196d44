// IF, FOR, LOOP and the tables: the bytes each construct compiles to, the
// patched offsets and the findings. What the code does when it runs is
// checked in the simulator test.

#include <gtest/gtest.h>

#include "assembler_fixture.h"

namespace korvex::testing {
namespace {

class StructuresTest : public AssemblerFixture {
  protected:
    std::string hexOf(const std::vector<std::string>& lines) {
        EXPECT_EQ(assembleLines(lines), RunOutcome::Completed);
        return hexImage();
    }
    std::vector<int> findingNumbers() const {
        std::vector<int> numbers;
        for (int line = 0; line < 8; ++line) {
            if (findingAt(line) != 0) numbers.push_back(findingAt(line));
        }
        return numbers;
    }
    // The lines, with `count` NOPs before the last.
    static std::vector<std::string> longBody(std::vector<std::string> lines, int count) {
        lines.insert(lines.end() - 1, static_cast<std::size_t>(count), "NOP");
        return lines;
    }
};

TEST_F(StructuresTest, EachConstructCompilesToItsBytes) {
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{"IF A=#0 THEN", "NOP", "END IF"}, "70 01 00"},
        {{"IF 20h.3", "NOP", "END IF"}, "30 03 01 00"},
        {{"IF R0=#5 THEN", "NOP", "ELSE", "NOP", "END IF"}, "B8 05 03 00 80 01 00"},
        {{"IF NOTBIT TR1", "NOP", "ELSEIF BITC THEN", "NOP", "ELSEIF A>#0", "NOP", "END IF"},
         "20 8E 03 00 80 08 50 03 00 80 03 60 01 00"},
        {{"IF A=#0 THENRET", "NOP"}, "70 01 22 00"},
        {{"IF A=#0", "IF A>#0", "EXIT IF", "NOP", "END IF", "NOP", "END IF"},
         "70 06 60 03 80 02 00 00"},
        // With the bit form of the exit condition the jump leaves the IF it stands in.
        {{"IF A=#0", "IF BIT TR1 THENEXITIF", "NOP", "END IF"}, "70 04 20 8E 01 00"},
        {{"IF A=#0", "IF R2=#9 THENEXITIF", "NOP", "END IF"}, "70 06 BA 09 02 80 01 00"},
        {{"FOR R1=#3", "NOP", "NEXT"}, "79 03 00 D9 FD"},
        {{"FOR R1", "NOP", "NEXT"}, "00 D9 FD"},
        {{"FOR 30h = #10", "NOP", "NEXT"}, "75 30 0A 00 D5 30 FC"},
        {{"FOR R0=#2", "IF A=#0 THENEXITFOR", "EXIT FOR", "NEXT", "NOP"},
         "78 02 60 04 80 02 D8 FA 00"},
        {{"LOOP", "NOP", "END LOOP"}, "00 80 FD"},
        {{"LOOP", "NOP", "UNTIL A=#0"}, "00 70 FD"},
        {{"LOOP WHILE BITC", "NOP", "END LOOP"}, "50 03 00 80 FB"},
        {{"LOOP", "IF A=#0 THENEXITLOOP", "EXIT LOOP", "END LOOP", "NOP"}, "60 04 80 02 80 FA 00"},
        // Kept as the language has it: the row of a depth remembers its WHILE.
        {{"LOOP WHILE A=#0", "END LOOP", "LOOP", "NOP", "END LOOP"}, "70 05 80 FC 00 80 FD"},
        {{"DB 'Ab',0", "db 'a,b'", "DB 'a b'", "DB 1, 2", "DW 1234h", "DW 'A'", "DW 'AB'",
          "DB LATER", "LATER:", "DB"},
         "41 62 00 61 2C 62 61 20 62 01 02 34 12 41 00 41 00 42 00 14"},
    };
    for (const auto& [lines, bytes] : cases) {
        EXPECT_EQ(hexOf(lines), bytes) << lines.front();
        EXPECT_EQ(findings(), std::vector<std::string>{}) << lines.front();
    }
}

TEST_F(StructuresTest, MisplacedPartsAreFindings) {
    hexOf({"IF A=#0", "ELSE", "NOP", "ELSE", "END IF"});
    EXPECT_EQ(findingNumbers(), std::vector<int>{35});
    EXPECT_EQ(image().size(), 7u);  // the second ELSE still emits its jump
    hexOf({"ELSE", "END IF", "ELSEIF A=#0", "IF A=#0", "ELSE", "ELSEIF A>#0", "END IF"});
    EXPECT_EQ(findingNumbers(), (std::vector<int>{22, 22, 38, 37}));
    hexOf({"IF A<#3", "IF R0>#1", "END IF", "END IF", "FOR A=#3", "NEXT", "EXIT IF"});
    EXPECT_EQ(findingNumbers(), (std::vector<int>{32, 32, 63, 23, 25}));
    hexOf({"EXIT FOR", "EXIT LOOP", "EXIT WHILE", "NEXT", "END LOOP", "LOOP X"});
    EXPECT_EQ(findingNumbers(), (std::vector<int>{26, 27, 15, 23, 24, 20}));
}

TEST_F(StructuresTest, JumpsOutOfReachMarkTheirLine) {
    hexOf(longBody({"IF A=#0", "END IF"}, 128));
    EXPECT_EQ(findings(), std::vector<std::string>{"1:2 ;>err62 relativer Adressbereich "
                                                   "\xFC"
                                                   "berschritten"});
    hexOf(longBody({"LOOP", "EXIT LOOP", "END LOOP"}, 130));
    EXPECT_EQ(findingAt(1), 62);
    hexOf(longBody({"LOOP", "UNTIL A=#0"}, 129));
    EXPECT_EQ(findingAt(130), 21);
}

TEST_F(StructuresTest, EqualConditionReadsItsOffsetBackAsDecimalInTheSecondPass) {
    // The forward constant makes the IF row a retried one; its patched offset
    // 1Ch comes back as 1.
    std::vector<std::string> lines = longBody({"IF R0=#LATER", "END IF"}, 28);
    lines.push_back("LATER:");
    hexOf(lines);
    EXPECT_EQ(bytesAt(0), "B8 1F 01");
}

TEST_F(StructuresTest, FaultyTableItems) {
    hexOf({"DB 'a'b", "DB 'a", "DB 300", "DW 70000", "DB NOWHERE,1"});
    EXPECT_EQ(findings(), (std::vector<std::string>{
                              "1:2 ;>err19: Formatfehler in Tabelle",
                              "1:3 ;>err19: Formatfehler in Tabelle", "1:4 ; Fehler: 300 > FFh",
                              "1:5 ; 70000 > FFFFh", "1:6 ;>err7 NOWHERE nicht erkannt."}));
    EXPECT_EQ(bytesAt(2), "2C");
    EXPECT_EQ(bytesAt(3), "70 11");
}

}  // namespace
}  // namespace korvex::testing
