// An unknown bit name: the bit operand reader leaves the bit context's 8 in
// the value, and every user that stores the value before its class check
// stores 08h with its finding.

#include <gtest/gtest.h>

#include "assembler_fixture.h"

namespace korvex::testing {
namespace {

using BitOperandTest = AssemblerFixture;

TEST_F(BitOperandTest, UnknownNameStoresEight) {
    const std::pair<const char*, const char*> cases[] = {
        {"SETB XYZ", "D2 08"},
        {"CLR XYZ", "C2 08"},
        {"ANL C,/XYZ", "B0 08"},
        {"SETB later", "D2 08"},  // labels don't evaluate in the bit context
    };
    for (const auto& [statement, bytes] : cases) {
        ASSERT_EQ(assembleLines({statement, "later: NOP"}), RunOutcome::Completed);
        EXPECT_EQ(bytesOfRow(0), bytes) << statement;
        EXPECT_EQ(markerNumber(0), 8) << statement;
    }
}

TEST_F(BitOperandTest, BitDeclaredFromAnUnknownNameTakesEight) {
    ASSERT_EQ(assembleLines({"#BIT F=XYZ", "SETB F"}), RunOutcome::Completed);
    EXPECT_EQ(markerNumber(0), 50);
    EXPECT_EQ(bytesOfRow(1), "D2 08");
    EXPECT_EQ(markerNumber(1), 0);
}

TEST_F(BitOperandTest, IfBitOnAnUnknownNameTakesEight) {
    ASSERT_EQ(assembleLines({"IF BIT XYZ", "NOP", "END IF"}), RunOutcome::Completed);
    // The second pass encodes the row again, so its offset is the unpatched 00.
    EXPECT_EQ(bytesOfRow(0), "30 08 00");
    EXPECT_EQ(markerNumber(0), 8);
}

}  // namespace
}  // namespace korvex::testing
