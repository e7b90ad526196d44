#include "workbench/label_finder.h"

#include <gtest/gtest.h>

namespace korvex {
namespace {

TEST(LabelFinderTest, LabelLinesAreThoseWhoseCodeEndsInAColon) {
    const std::string text =
        "start:\r\n"
        "\tstart: ; Anfang\r\n"
        "start: mov a,#1\r\n"
        "LOOP:\t;\r\n"
        "\tmov a,#':'\r\n"
        "restart:\r\n"
        "ende:";  // the last line without line end isn't seen
    EXPECT_EQ(CollectLabels(text),
              (std::vector<std::string>{"start:", "\tstart: ; Anfang", "LOOP:\t;", "restart:"}));
    EXPECT_EQ(CollectLabels("ende:"), std::vector<std::string>{std::string(kNoLabels)});
    EXPECT_EQ(CollectLabels(""), std::vector<std::string>{std::string(kNoLabels)});
    EXPECT_EQ(LabelRowText("\tstart: ; Anfang"), "start: ; Anfang");
    EXPECT_EQ(LabelRowText("LOOP:\t;"), "LOOP:   ;");
}

TEST(LabelFinderTest, AJumpGoesToTheFirstPlaceOfTheLineWithItsLineEnd) {
    const std::string text = "restart:\r\nnop\r\nstart:\r\nstart:\r\n";
    EXPECT_EQ(LabelPosition(text, "start:"), 2);  // the end of "restart:" matches first
    EXPECT_EQ(LabelPosition(text, "nop"), 10);
    EXPECT_EQ(LabelPosition(text, "fort:"), -1);
    EXPECT_EQ(LabelPosition(text, std::string(kNoLabels)), -1);
}

}  // namespace
}  // namespace korvex
