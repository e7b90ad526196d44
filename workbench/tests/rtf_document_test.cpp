#include "workbench/rtf_document.h"

#include <gtest/gtest.h>

#include "workbench/rtf_text.h"

namespace korvex {
namespace {

TEST(RtfDocument, EveryTextComesBackFromItsRtf) {
    std::string text;
    for (int byte = 0; byte < 256; ++byte) text += static_cast<char>(byte);
    text += "\r\nend\\{}\r\n";
    const std::string rtf = rtfOfPlainText(text);
    EXPECT_TRUE(looksLikeRtf(rtf.substr(0, 20)));
    EXPECT_EQ(plainTextOfRtf(rtf), text);
}

}  // namespace
}  // namespace korvex
