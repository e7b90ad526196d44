#include "workbench/rtf_text.h"

#include <gtest/gtest.h>

namespace korvex {
namespace {

TEST(RtfText, KeepsTheTextAndDropsFormatTablesAndPictures) {
    const std::string rtf =
        "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Arial;}}{\\colortbl;\\red0\\green128\\blue0;}"
        "\\pard\\li120\\plain MOV A,\\'e4 \\{x\\}\\par\r\n\\tab NOP\\line{\\*\\generator W;}"
        "{\\pict\\wmetafile8 0a0b}\\u8364?\\uc0\\u228 x\\~\\\\}";
    EXPECT_EQ(plainTextOfRtf(rtf), "MOV A,\xE4 {x}\r\n\tNOP\r\n\x80\xE4x\xA0\\");
}

TEST(RtfText, BrokenRtfGivesWhatCouldBeRead) {
    EXPECT_EQ(plainTextOfRtf("}}}ab{\\'zz\\u-3"), "abzz?");
    EXPECT_EQ(plainTextOfRtf("{\\rtf1 a\\"), "a");
    EXPECT_EQ(plainTextOfRtf(std::string(100000, '{') + "x"), "x");
}

TEST(RtfText, EveryTextComesBackFromItsRtf) {
    std::string text;
    for (int byte = 0; byte < 256; ++byte) text += static_cast<char>(byte);
    text += "\r\nend\\{}\r\n";
    EXPECT_EQ(plainTextOfRtf(rtfOfPlainText(text)), text);
}

}  // namespace
}  // namespace korvex
