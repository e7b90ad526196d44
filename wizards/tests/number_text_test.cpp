// Numbers shown and read as the system does it: seven and fifteen
// significant digits, the user's decimal mark, Val's reading, rounding half
// to even, the hexadecimal helpers.

#include <gtest/gtest.h>

#include "base/failure.h"
#include "wizards/core/number_text.h"

namespace korvex::wizards {
namespace {

constexpr NumberFormat kComma{','};
constexpr NumberFormat kPoint{'.'};

TEST(NumberText, SingleHasSevenDigitsNoTrailingZerosAndTheUsersMark) {
    EXPECT_EQ(singleText(2403.846153f, kComma), "2403,846");
    EXPECT_EQ(singleText(122.0703125f, kComma), "122,0703");
    EXPECT_EQ(singleText(8.192f, kPoint), "8.192");
    EXPECT_EQ(singleText(1000000.0f, kComma), "1000000");
    EXPECT_EQ(singleText(15.258789f, kComma), "15,25879");
    EXPECT_EQ(singleText(0.5f, kComma), "0,5");
    // Where the number needs it, the exponent form.
    EXPECT_EQ(singleText(12345678.0f, kComma), "1,234568E+07");
    EXPECT_EQ(singleText(0.00001f, kPoint), "1E-05");
    EXPECT_EQ(singleText(0.0001f, kPoint), "0.0001");
}

TEST(NumberText, DoubleHasFifteenDigits) {
    EXPECT_EQ(doubleText(187500.0, kComma), "187500");
    EXPECT_EQ(doubleText(1.0 / 3.0, kComma), "0,333333333333333");
    EXPECT_EQ(doubleText(1e15, kPoint), "1E+15");
}

TEST(NumberText, SystemConversionKnowsTheDecimalMarkAndSkipsGroupMarks) {
    EXPECT_FLOAT_EQ(systemSingle("11,0592", kComma), 11.0592f);
    EXPECT_FLOAT_EQ(systemSingle(" 12 ", kComma), 12.0f);
    EXPECT_FLOAT_EQ(systemSingle("11.0592", kPoint), 11.0592f);
    // Under a German system the point groups thousands.
    EXPECT_FLOAT_EQ(systemSingle("11.0592", kComma), 110592.0f);
    EXPECT_FLOAT_EQ(systemSingle("1,2", kPoint), 12.0f);
    for (const char* bad : {"", "abc", "12x", ","}) {
        try {
            systemSingle(bad, kComma);
            ADD_FAILURE() << bad;
        } catch (const RuntimeFailure& f) {
            EXPECT_EQ(f.number(), 13) << bad;
        }
    }
    try {
        systemSingle("1E39", kComma);
        ADD_FAILURE();
    } catch (const RuntimeFailure& f) {
        EXPECT_EQ(f.number(), 6);
    }
}

TEST(NumberText, ValKnowsOnlyThePointAndStopsWhereItCannotGoOn) {
    EXPECT_DOUBLE_EQ(valNumber("1,5"), 1.0);
    EXPECT_DOUBLE_EQ(valNumber("10000"), 10000.0);
    EXPECT_DOUBLE_EQ(valNumber(" 1 2.5x"), 12.5);
    EXPECT_DOUBLE_EQ(valNumber("abc"), 0.0);
    EXPECT_DOUBLE_EQ(valNumber(""), 0.0);
    EXPECT_DOUBLE_EQ(valNumber("-3e2"), -300.0);
    EXPECT_DOUBLE_EQ(valNumber("&HFF"), 255.0);
    // Four hex digits without the long suffix are a 16-bit integer.
    EXPECT_DOUBLE_EQ(valNumber("&HFFFF"), -1.0);
    EXPECT_DOUBLE_EQ(valNumber("&HFFFF&"), 65535.0);
    EXPECT_DOUBLE_EQ(valNumber("&O17"), 15.0);
}

TEST(NumberText, RoundingGoesHalfToEvenAndOverflowFails) {
    EXPECT_EQ(roundToInt32(242.5), 242);
    EXPECT_EQ(roundToInt32(243.5), 244);
    EXPECT_EQ(roundToInt32(-0.5), 0);
    EXPECT_EQ(roundToInt32(242.979), 243);
    EXPECT_THROW(roundToInt32(3e9), RuntimeFailure);
}

TEST(NumberText, HexHelpers) {
    EXPECT_EQ(hexText(0), "0");
    EXPECT_EQ(hexText(243), "F3");
    EXPECT_EQ(hexText(-1), "FFFFFFFF");
    EXPECT_EQ(hex2(5), "05");
    EXPECT_EQ(hex2(0x19C), "9C");
    EXPECT_EQ(hex2(-100), "9C");
    EXPECT_EQ(hexFieldValue("0A"), 10);
    EXPECT_EQ(hexFieldValue(""), 0);
    EXPECT_EQ(hexFieldValue("FF"), 255);
}

}  // namespace
}  // namespace korvex::wizards
