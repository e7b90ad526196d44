// 8-bit text, its edges to UTF-8, and the host's checked numbers.

#include <gtest/gtest.h>

#include "base/cp1252.h"
#include "base/failure.h"
#include "base/text.h"

namespace korvex {
namespace {

TEST(Cp1252Test, EveryByteSurvivesTheRoundTrip) {
    std::string all;
    for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
    EXPECT_EQ(fromUtf8(toUtf8(all)), all);
    EXPECT_EQ(toUtf8("\x80\xE4\xDF"), "€äß");
    EXPECT_EQ(fromUtf8("Größe €"),
              "Gr\xF6\xDF"
              "e \x80");
}

TEST(Cp1252Test, UnknownAndBrokenInputBecomesQuestionMarks) {
    EXPECT_EQ(fromUtf8("漢"), "?");
    EXPECT_EQ(fromUtf8("a\xC3"), "a?");
    EXPECT_EQ(fromUtf8("\xFF\xFE"), "??");
}

TEST(Cp1252Test, UpperCaseFoldsTheEightBitLetters) {
    EXPECT_EQ(upperCase(text8("zählerß ÿ š œ ž ÷")), text8("ZÄHLERß Ÿ Š Œ Ž ÷"));
}

TEST(TextTest, CleanTextRemovesBlanksAndTabsAtBothEnds) {
    std::string text = " \t \tMOV A,#1\t \t";
    cleanText(text);
    EXPECT_EQ(text, "MOV A,#1");
    EXPECT_EQ(cleaned("\t\t\t\t"), "");
    EXPECT_EQ(trimBlanks("\t x \t"), "\t x \t");
}

TEST(TextTest, HexDigitsAreCutToTheirWidth) {
    EXPECT_EQ(hexDigits(0x1A, 4), "001A");
    EXPECT_EQ(hexDigits(0x12345, 4), "2345");
    EXPECT_EQ(hexDigits(-1, 4), "FFFF");
    EXPECT_EQ(hexDigits(0x7F), "7F");
    EXPECT_EQ(decimalText(5, true), " 5");
    EXPECT_EQ(decimalText(-5, true), "-5");
}

TEST(FailureTest, CountersAndStoresOverflowLikeTheHost) {
    Int16 counter = 32766;
    ++counter;
    EXPECT_EQ(counter.value(), 32767);
    EXPECT_THROW(++counter, RuntimeFailure);
    EXPECT_THROW(checkedByte(256), RuntimeFailure);
    EXPECT_THROW(checkedByte(-1), RuntimeFailure);
    EXPECT_THROW(checkedAdd(0x7FFFFFFF, 1), RuntimeFailure);
    try {
        raise(FailureNumber::ReadPastEnd);
    } catch (const RuntimeFailure& failure) {
        EXPECT_EQ(failure.number(), 62);
        EXPECT_EQ(failure.description(), "Einlesen hinter Dateiende");
        EXPECT_EQ(failure.source(), "Korvex");
    }
}

}  // namespace
}  // namespace korvex
