// 8-bit text, its edges to UTF-8, and the host's checked numbers.

#include <gtest/gtest.h>

#include "base/cp1252.h"
#include "base/failure.h"
#include "base/text.h"

namespace korvex {
namespace {

TEST(TextTest, EightBitTextAndItsEdgesToUtf8) {
    std::string all;
    for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
    EXPECT_EQ(fromUtf8(toUtf8(all)), all);
    EXPECT_EQ(toUtf8("\x80\xE4\xDF"), "€äß");
    // Unknown and broken input becomes question marks.
    EXPECT_EQ(fromUtf8("漢"), "?");
    EXPECT_EQ(fromUtf8("a\xC3"), "a?");
    EXPECT_EQ(fromUtf8("\xFF\xFE"), "??");
    EXPECT_EQ(upperCase(text8("zählerß ÿ š œ ž ÷")), text8("ZÄHLERß Ÿ Š Œ Ž ÷"));
    EXPECT_EQ(cleaned(" \t \tMOV A,#1\t \t"), "MOV A,#1");
    EXPECT_EQ(trimBlanks("\t x \t"), "\t x \t");
    EXPECT_EQ(hexDigits(0x12345, 4), "2345");
    EXPECT_EQ(hexDigits(-1, 4), "FFFF");
    EXPECT_EQ(decimalText(5, true), " 5");
    EXPECT_EQ(decimalText(-5, true), "-5");
}

TEST(TextTest, CountersAndStoresOverflowLikeTheHost) {
    Int16 counter = 32766;
    ++counter;
    EXPECT_EQ(counter.value(), 32767);
    EXPECT_THROW(++counter, RuntimeFailure);
    EXPECT_THROW(checkedByte(256), RuntimeFailure);
    EXPECT_THROW(checkedByte(-1), RuntimeFailure);
    EXPECT_THROW(checkedAdd(0x7FFFFFFF, 1), RuntimeFailure);
}

}  // namespace
}  // namespace korvex
