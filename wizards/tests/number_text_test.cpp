// Numbers shown and read as the system does it: seven and fifteen
// significant digits, the user's decimal mark, Val's reading, rounding half
// to even; the key filters of the fields and the binary conversions; the
// timer and baud-rate formulas.

#include <gtest/gtest.h>

#include "base/failure.h"
#include "wizards/core/key_filters.h"
#include "wizards/core/number_text.h"
#include "wizards/core/timer_arithmetic.h"

namespace korvex::wizards {
namespace {

constexpr NumberFormat kComma{','};
constexpr NumberFormat kPoint{'.'};

int failureOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const RuntimeFailure& failure) {
        return failure.number();
    }
    return 0;
}

TEST(NumberText, ShownWithSevenOrFifteenDigitsAndTheUsersMark) {
    EXPECT_EQ(singleText(2403.846153f, kComma), "2403,846");
    EXPECT_EQ(singleText(8.192f, kPoint), "8.192");
    EXPECT_EQ(singleText(12345678.0f, kComma), "1,234568E+07");
    EXPECT_EQ(singleText(0.00001f, kPoint), "1E-05");
    EXPECT_EQ(singleText(0.0001f, kPoint), "0.0001");
    EXPECT_EQ(doubleText(1.0 / 3.0, kComma), "0,333333333333333");
    EXPECT_EQ(doubleText(1e15, kPoint), "1E+15");
    EXPECT_EQ(hexText(-1), "FFFFFFFF");
    EXPECT_EQ(hex2(-100), "9C");
    EXPECT_EQ(hexFieldValue(""), 0);
}

TEST(NumberText, ReadTheSystemsWayAndValsWay) {
    EXPECT_FLOAT_EQ(systemSingle(" 12 ", kComma), 12.0f);
    // Under a German system the point groups thousands.
    EXPECT_FLOAT_EQ(systemSingle("11.0592", kComma), 110592.0f);
    EXPECT_FLOAT_EQ(systemSingle("1,2", kPoint), 12.0f);
    for (const char* bad : {"", "abc", "12x", ","}) {
        EXPECT_EQ(failureOf([&] { systemSingle(bad, kComma); }), 13) << bad;
    }
    EXPECT_EQ(failureOf([] { systemSingle("1E39", kComma); }), 6);

    EXPECT_DOUBLE_EQ(valNumber("1,5"), 1.0);
    EXPECT_DOUBLE_EQ(valNumber(" 1 2.5x"), 12.5);
    EXPECT_DOUBLE_EQ(valNumber("-3e2"), -300.0);
    // Four hex digits without the long suffix are a 16-bit integer.
    EXPECT_DOUBLE_EQ(valNumber("&HFFFF"), -1.0);
    EXPECT_DOUBLE_EQ(valNumber("&HFFFF&"), 65535.0);
    EXPECT_DOUBLE_EQ(valNumber("&O17"), 15.0);

    EXPECT_EQ(roundToInt32(242.5), 242);
    EXPECT_EQ(roundToInt32(243.5), 244);
    EXPECT_EQ(roundToInt32(-0.5), 0);
    EXPECT_THROW(roundToInt32(3e9), RuntimeFailure);
}

TEST(KeyFilters, FieldsTakeTheirKeysOnly) {
    const auto filtered = [](auto filter, std::int16_t key) {
        filter(key);
        return key;
    };
    const auto hex = [](const char* text, int selection) {
        return [=](std::int16_t& k) { hexKeyFilter(text, selection, k); };
    };
    const auto binary = [](const char* text) {
        return [=](std::int16_t& k) { binaryKeyFilter(text, 0, k); };
    };
    const auto number = [](NumberFormat format) {
        return [=](std::int16_t& k) { numberKeyFilter(k, format); };
    };
    EXPECT_EQ(filtered(hex("1", 0), 'a'), 'A');
    EXPECT_EQ(filtered(hex("1", 0), 'g'), 0);
    // A full field drops every key but Backspace, unless something is selected.
    EXPECT_EQ(filtered(hex("AB", 0), 'a'), 0);
    EXPECT_EQ(filtered(hex("AB", 1), 'a'), 'A');
    EXPECT_EQ(filtered(hex("AB", 0), kBackspace), kBackspace);
    EXPECT_EQ(filtered(binary("0101010"), '1'), '1');
    EXPECT_EQ(filtered(binary("01010101"), '1'), 0);
    EXPECT_EQ(filtered(binary("0"), '2'), 0);
    EXPECT_EQ(filtered(decimalKeyFilter, '5'), '5');
    EXPECT_EQ(filtered(decimalKeyFilter, ','), 0);
    // Under a decimal comma the point becomes a comma, and the other way round.
    EXPECT_EQ(filtered(number(kComma), '.'), ',');
    EXPECT_EQ(filtered(number(kPoint), ','), '.');
    EXPECT_EQ(filtered(number(kComma), 'x'), 0);
    EXPECT_EQ(filtered(number(kPoint), kBackspace), kBackspace);

    EXPECT_EQ(binaryTextToValue("00000101"), 5);
    EXPECT_EQ(binaryTextToValue("0111111111111111"), 32767);
    EXPECT_THROW(binaryTextToValue("1000000000000000"), RuntimeFailure);
    EXPECT_EQ(valueToBinaryText("A5"), "0000000010100101");
    EXPECT_EQ(valueToBinaryText("12345"), "0010001101000101");
    EXPECT_EQ(valueToBinaryText(""), "0000000000000000");
}

TEST(TimerArithmetic, ReloadsClampAndTheActualRates) {
    const BaudSetting b2400 = timer1Baud(12e6f, 2400, false);
    EXPECT_EQ(b2400.reload, 0xF3);
    EXPECT_EQ(singleText(toSingle(b2400.actual), kComma), "2403,846");
    EXPECT_EQ(timer1Baud(12e6f, 110, false).reload, 0);  // r would be -28
    EXPECT_EQ(timer1Baud(11059200.0f, 19200, true).reload, 0xFD);
    EXPECT_EQ(timer2Baud(12e6f, 9600).reload, 65497);  // 65536 - 39.0625, rounded
    EXPECT_EQ(timer2Baud(12e6f, 1).reload, 0);
    // A rate so high that R rounds to 65536 divides by zero.
    EXPECT_EQ(failureOf([] { timer2Baud(12e6f, 1e9); }), 11);
    EXPECT_EQ(timer01ReloadForFrequency(12.0f, 10000), 0x9C);
    EXPECT_EQ(timer01ReloadForFrequency(12.0f, 1), 0);
    EXPECT_EQ(timer2ReloadForFrequency(12e6f, 10000, Timer2ReloadDivider::Timer), 65436);
    EXPECT_EQ(timer2ReloadForFrequency(12e6f, 9600, Timer2ReloadDivider::Baud), 65497);
}

}  // namespace
}  // namespace korvex::wizards
