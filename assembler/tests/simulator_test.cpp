// Structured programs run in Debian's 8051 simulator (s51 from sdcc-ucsim):
// the registers and RAM they leave must be what the structures compute.

#include <gtest/gtest.h>

#include <map>

#include "assembler_fixture.h"
#include "base/text.h"
#include "testing/s51_runner.h"

namespace korvex::testing {
namespace {

class SimulatorTest : public AssemblerFixture {
  protected:
    // Assembles the program, runs it up to the label STOP and reads the
    // internal RAM bytes asked for.
    std::map<int, int> runUntilStop(const std::vector<std::string>& lines,
                                    const std::vector<int>& addresses) {
        EXPECT_EQ(assembleLines(lines), RunOutcome::Completed);
        EXPECT_EQ(findings(), std::vector<std::string>{});
        const std::string stop = symbol("STOP");
        EXPECT_NE(stop, "-");
        std::vector<std::string> cells;
        for (int address : addresses) cells.push_back("iram:" + hexDigits(address, 2));
        const auto values = runInSimulator(readFile("prog.h51"),
                                           static_cast<std::int32_t>(parseHexPrefix(stop)), cells);
        std::map<int, int> memory;
        for (const auto& [cell, value] : values) {
            memory[static_cast<int>(parseHexPrefix(cell.substr(5)))] = value;
        }
        EXPECT_EQ(memory.size(), addresses.size());
        return memory;
    }
};

TEST_F(SimulatorTest, StructuredProgramComputesItsResults) {
    if (!simulatorAvailable()) GTEST_SKIP() << "s51 (Debian sdcc-ucsim) fehlt";
    const std::vector<std::string> program = {
        "        MOV SP,#5Fh",
        "; FOR with a register counter, IF / ELSEIF / ELSE inside",
        "        MOV 30h,#0 : MOV 31h,#0 : MOV 32h,#0",
        "        FOR R7=#6",
        "            IF R7=#1 THEN",
        "                INC 30h",
        "            ELSEIF R7=#2 THEN",
        "                INC 31h",
        "            ELSE",
        "                MOV A,32h : ADD A,R7 : MOV 32h,A",
        "            END IF",
        "        NEXT",
        "; LOOP ... UNTIL",
        "        MOV R1,#0",
        "        LOOP",
        "            INC R1",
        "        UNTIL R1=#7",
        "; leaving a LOOP",
        "        MOV R2,#0",
        "        LOOP",
        "            INC R2",
        "            IF R2=#4 THENEXITLOOP",
        "        END LOOP",
        "; LOOP WHILE counts A down; it comes after the plain loops, as a plain LOOP",
        "; of the same depth would patch its branch again",
        "        MOV R0,#0 : MOV A,#10",
        "        LOOP WHILE A>#0",
        "            INC R0 : DEC A",
        "        END LOOP",
        "; FOR with a direct counter, left early",
        "        MOV R3,#0",
        "        FOR 40h = #20",
        "            INC R3",
        "            IF R3=#5 THENEXITFOR",
        "        NEXT",
        "; EXIT IF leaves the IF around the one it stands in",
        "        MOV R4,#0 : MOV A,#1",
        "        IF A>#0 THEN",
        "            IF A>#0 THEN",
        "                MOV R4,#1",
        "                EXIT IF",
        "                MOV R4,#2",
        "            END IF",
        "            MOV R4,#3",
        "        END IF",
        "; bit conditions and a conditional return",
        "        SETB 20h.0 : CLR 20h.1 : MOV 43h,#0",
        "        IF NOTBIT 20h.1 THEN",
        "            IF BIT 20h.0 THEN",
        "                MOV 43h,#77",
        "            END IF",
        "        END IF",
        "        MOV A,#0 : Check : MOV 41h,R5",
        "        MOV A,#1 : Check : MOV 42h,R5",
        "STOP:",
        "        END",
        "CHECK:",
        "        MOV R5,#1",
        "        IF A=#0 THENRET",
        "        MOV R5,#2",
        "        RET",
    };
    const std::map<int, int> memory = runUntilStop(
        program, {0x30, 0x31, 0x32, 0x00, 0x01, 0x02, 0x03, 0x40, 0x04, 0x41, 0x42, 0x43});
    const std::map<int, int> expected = {
        {0x30, 1},  {0x31, 1},  {0x32, 3 + 4 + 5 + 6},  // the ELSE part sums 6, 5, 4, 3
        {0x00, 10},                                     // R0: ten rounds of the WHILE
        {0x01, 7},                                      // R1: until 7
        {0x02, 4},                                      // R2: left at 4
        {0x03, 5},  {0x40, 16},                         // R3 and the direct counter
        {0x04, 1},                                      // R4: EXIT IF skipped both others
        {0x41, 1},  {0x42, 2},                          // THENRET returned early for A = 0
        {0x43, 77}};
    EXPECT_EQ(memory, expected);
}

}  // namespace
}  // namespace korvex::testing
