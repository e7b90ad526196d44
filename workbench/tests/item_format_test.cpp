// The classic item format: what a hand-edited or damaged file reads as.

#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "base/failure.h"
#include "workbench/item_format.h"

namespace korvex {
namespace {

int failureOf(const std::string& text, const std::function<void(ItemReader&)>& read) {
    std::istringstream in(text);
    ItemReader reader(in);
    try {
        read(reader);
    } catch (const RuntimeFailure& failure) {
        return failure.number();
    }
    return 0;
}

TEST(ItemFormat, ItemsAreSeparatedByCommasAndLineEndsAlike) {
    std::istringstream in(
        "\"a\" ,  b c \r\n 7\n#TRUE#\r-3,\"x,y\",,\r\n\r\n\"say \"hi\" now\",\"2\r\n"
        "lines\"," +
        std::string(ItemReader::kMaxItemLength + 10, 'x') + ",next");
    ItemReader reader(in);
    EXPECT_EQ(reader.readString(), "a");
    EXPECT_EQ(reader.readString(), "b c");  // bare items lose blanks at both ends
    EXPECT_EQ(reader.readInt16(), 7);
    EXPECT_TRUE(reader.readBoolean());
    EXPECT_EQ(reader.readInt32(), -3);
    EXPECT_EQ(reader.readString(), "x,y");
    EXPECT_EQ(reader.readInt16(), 0);        // empty between two commas
    EXPECT_FALSE(reader.readBoolean());      // empty before the line end
    EXPECT_EQ(reader.readString(), "");      // the empty line
    EXPECT_EQ(reader.readString(), "say ");  // no escape: an inner quote cuts the rest
    EXPECT_EQ(reader.readString(), "2\r\nlines");
    // An overlong item keeps its beginning and the file goes on.
    EXPECT_EQ(reader.readString().size(), ItemReader::kMaxItemLength);
    EXPECT_EQ(reader.readString(), "next");
    EXPECT_EQ(failureOf("\"open", [](ItemReader& r) { r.readString(), r.readString(); }), 62);
}

TEST(ItemFormat, NumbersRoundHalvesToEvenAndCheckTheirRange) {
    std::istringstream in("2.5,3.5,-2.5,0.4999,1e3,\" 12\",#false#,#TRUE#,.5,1.5E1,#True#,0.25");
    ItemReader reader(in);
    for (const int expected : {2, 4, -2, 0, 1000, 12, 0, -1, 0, 15}) {
        EXPECT_EQ(reader.readInt16(), expected);
    }
    EXPECT_TRUE(reader.readBoolean());
    EXPECT_TRUE(reader.readBoolean());  // any number but 0 is true
    const auto int16 = [](ItemReader& r) { r.readInt16(); };
    const auto int32 = [](ItemReader& r) { r.readInt32(); };
    EXPECT_EQ(failureOf("-32768.5", int16), 0);  // rounds to the even -32768
    EXPECT_EQ(failureOf("32767.5", int16), 6);
    EXPECT_EQ(failureOf("2147483648", int32), 6);
    EXPECT_EQ(failureOf("1e99999999999999999999", int32), 6);
    EXPECT_EQ(failureOf("1e-99999999999999999999", int32), 0);
    for (const char* text : {"abc", "1 2", "&H10", "1e", ".", "--1", "inf"}) {
        EXPECT_EQ(failureOf(text, int16), 13) << text;
        EXPECT_EQ(failureOf(text, [](ItemReader& r) { r.readBoolean(); }), 13) << text;
    }
}

}  // namespace
}  // namespace korvex
