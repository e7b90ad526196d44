// The key filters of the fields and the binary conversions.

#include <gtest/gtest.h>

#include "base/failure.h"
#include "wizards/core/key_filters.h"

namespace korvex::wizards {
namespace {

std::int16_t hexKey(const std::string& text, int selection, char key) {
    std::int16_t k = key;
    hexKeyFilter(text, selection, k);
    return k;
}

TEST(KeyFilters, HexFieldTakesTwoDigitsAndCapitals) {
    EXPECT_EQ(hexKey("", 0, '7'), '7');
    EXPECT_EQ(hexKey("1", 0, 'a'), 'A');
    EXPECT_EQ(hexKey("1", 0, 'F'), 'F');
    EXPECT_EQ(hexKey("1", 0, 'g'), 0);
    EXPECT_EQ(hexKey("1", 0, ','), 0);
    // A full field drops every key but Backspace, unless something is selected.
    EXPECT_EQ(hexKey("AB", 0, 'a'), 0);
    EXPECT_EQ(hexKey("AB", 1, 'a'), 'A');
    EXPECT_EQ(hexKey("AB", 0, 8), 8);
}

TEST(KeyFilters, BinaryFieldTakesEightOnesAndZeros) {
    std::int16_t k = '1';
    binaryKeyFilter("0101010", 0, k);
    EXPECT_EQ(k, '1');
    k = '1';
    binaryKeyFilter("01010101", 0, k);
    EXPECT_EQ(k, 0);
    k = '2';
    binaryKeyFilter("0", 0, k);
    EXPECT_EQ(k, 0);
}

TEST(KeyFilters, DecimalAndNumberFilters) {
    std::int16_t k = '5';
    decimalKeyFilter(k);
    EXPECT_EQ(k, '5');
    k = ',';
    decimalKeyFilter(k);
    EXPECT_EQ(k, 0);

    // Under a decimal comma the point becomes a comma, and the other way round.
    k = '.';
    numberKeyFilter(k, NumberFormat{','});
    EXPECT_EQ(k, ',');
    k = ',';
    numberKeyFilter(k, NumberFormat{'.'});
    EXPECT_EQ(k, '.');
    k = 'x';
    numberKeyFilter(k, NumberFormat{','});
    EXPECT_EQ(k, 0);
    k = 8;
    numberKeyFilter(k, NumberFormat{'.'});
    EXPECT_EQ(k, 8);
}

TEST(KeyFilters, BinaryConversions) {
    EXPECT_EQ(binaryTextToValue("00000101"), 5);
    EXPECT_EQ(binaryTextToValue("11111111"), 255);
    EXPECT_EQ(binaryTextToValue(""), 0);
    EXPECT_EQ(binaryTextToValue("0111111111111111"), 32767);
    EXPECT_THROW(binaryTextToValue("1000000000000000"), RuntimeFailure);
    EXPECT_EQ(valueToBinaryText("A5"), "0000000010100101");
    EXPECT_EQ(valueToBinaryText("FFFF"), "1111111111111111");
    EXPECT_EQ(valueToBinaryText("12345"), "0010001101000101");
    EXPECT_EQ(valueToBinaryText(""), "0000000000000000");
}

}  // namespace
}  // namespace korvex::wizards
