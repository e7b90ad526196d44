// Sources once saved as RTF open as their plain text.

#include "workbench/rtf_text.h"

#include <gtest/gtest.h>

namespace korvex {
namespace {

TEST(RtfText, IsToldByItsFirstTwentyBytes) {
    EXPECT_TRUE(looksLikeRtf("{\\rtf1\\ansi\\ansicpg1252"));
    EXPECT_FALSE(looksLikeRtf("{\\rtf1\\mac"));
    EXPECT_FALSE(looksLikeRtf("                    {\\rtf1\\ansi"));
}

TEST(RtfText, KeepsTextTabsAndParagraphsAndLeavesOutTablesAndPictures) {
    const std::string rtf =
        "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss "
        "Arial;}}{\\colortbl;\\red0\\green128\\blue0;}\r\n"
        "\\pard\\li120 start:\\tab mov a,#\\'e4 \\cf1 ; \\{x\\}\\\\\\par\r\n"
        "{\\pict\\wmetafile8 0102ff}ende\\u8364?\\par\r\n"
        "{\\*\\generator Riched20;}}";
    EXPECT_EQ(plainTextOfRtf(rtf), "start:\tmov a,#\xE4 ; {x}\\\r\nende\x80\r\n");
}

TEST(RtfText, DamagedInputEndsQuietly) {
    EXPECT_EQ(plainTextOfRtf("}}}a{{{\\'4"), "a");
    EXPECT_EQ(plainTextOfRtf("\\u99999999999999 ?b\\"), "?b");
    EXPECT_EQ(plainTextOfRtf(std::string(100000, '{') + "x"), "x");
}

}  // namespace
}  // namespace korvex
