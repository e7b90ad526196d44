#include "workbench/file_comparison.h"

#include <gtest/gtest.h>

#include "base/failure.h"

namespace korvex {
namespace {

TEST(FileComparisonTest, HexFilesBecomeImagesAndEverythingElseStaysAsItIs) {
    EXPECT_TRUE(IsHexLine(":00000001ff"));
    EXPECT_FALSE(IsHexLine(":"));
    EXPECT_FALSE(IsHexLine(":0000 0001FF"));
    EXPECT_FALSE(IsHexLine(""));

    // Two layouts of the same bytes, lower case accepted; the gap is filled.
    const std::string oneRecord = ":0400000001020304F2\r\n:00000001FF\r\n";
    const std::string twoRecords = ":020000000102FB\r\n:020002000304f5\r\n:00000001FF";
    EXPECT_EQ(LoadForCompare(oneRecord, true, 0xFF), "\x01\x02\x03\x04");
    EXPECT_EQ(LoadForCompare(twoRecords, true, 0xFF), LoadForCompare(oneRecord, true, 0xFF));
    const std::string high = LoadForCompare(":0110000055AA\r\n:00000001FF\r\n", true, 0x00);
    ASSERT_EQ(high.size(), 0x1001u);
    EXPECT_EQ(high.substr(0x0FFF), std::string("\0\x55", 2));
    // Not hex through and through, not expanded, or empty: the bytes as they are.
    const std::string mixed = ":0100000055AA\r\nEnde\r\n";
    EXPECT_EQ(LoadForCompare(mixed, true, 0xFF), mixed);
    EXPECT_EQ(LoadForCompare(oneRecord, false, 0xFF), oneRecord);
    EXPECT_EQ(LoadForCompare(oneRecord + "\r\n", true, 0xFF), oneRecord + "\r\n");  // blank line
    EXPECT_EQ(LoadForCompare("", true, 0xFF), "");
    // A line too short for its address reads what it has: address 0.
    EXPECT_EQ(LoadForCompare(":9", true, 0xFF), std::string(9, '\xFF'));
    // More data than the length byte promises has nowhere to go.
    EXPECT_THROW(LoadForCompare(":01000000010203FF\r\n", true, 0xFF), RuntimeFailure);
}

TEST(FileComparisonTest, DifferencesAreListedOverTheCommonLengthUpToTheLimit) {
    std::string first(16, 'a');
    std::string second = first + "longer";
    second[10] = '\x34';
    first[10] = '\x12';
    EXPECT_EQ(CompareBytes(first, second, 100), "00000Ah: 12 34\r\n");
    EXPECT_EQ(CompareBytes(first, first, 100), "");
    const std::string zeros(5, '\0');
    const std::string ones(5, '\1');
    EXPECT_EQ(CompareBytes(zeros, ones, 2),
              "000000h: 00 01\r\n000001h: 00 01\r\n2 Differenzen, Vergleich abgebrochen.");
    EXPECT_EQ(CompareBytes(zeros, ones, 0).size(), 5 * 16u);  // 0 never stops
}

}  // namespace
}  // namespace korvex
