#include "workbench/help_topics.h"

#include <gtest/gtest.h>

#include "workbench/controller_choice.h"

namespace korvex {
namespace {

TEST(HelpTopicsTest, WordsFindTheirTopicsByExactCompare) {
    const std::pair<const char*, int> words[] = {
        {"mov", 1310},      {"ADDC", 1100}, {"add", 1090},    {"reti", 1500}, {"#xyz", 1760},
        {"#Include", 1790}, {"of", 1795},   {"elseif", 1680}, {";", 1750},
    };
    for (const auto& [word, number] : words) {
        const HelpRequest request = HelpForWord(word);
        EXPECT_EQ(request.kind, HelpRequest::Kind::Topic) << word;
        EXPECT_EQ(request.topic, number) << word;
        EXPECT_EQ(request.file, kMainHelpFile);
    }
    EXPECT_EQ(HelpForWord("XYZ").kind, HelpRequest::Kind::Contents);
    EXPECT_EQ(HelpForWord("ADDX").kind, HelpRequest::Kind::Contents);  // no prefix match
    EXPECT_EQ(HelpForWord("exit").kind, HelpRequest::Kind::Keyword);
    EXPECT_EQ(HelpForWord("exit").keyword, "Exit");
}

TEST(HelpTopicsTest, TheControllerChoosesTheRegisterHelp) {
    EXPECT_EQ(RegisterHelpFile("80c552"), "552sfr.hlp");
    EXPECT_EQ(RegisterHelpFile("C509"), "c517sfr.hlp");
    EXPECT_EQ(RegisterHelpFile("89LPC913"), "lpc912.hlp");
    EXPECT_EQ(RegisterHelpFile("Z80"), "8032sfr.hlp");
    EXPECT_EQ(HelpForCommand("MnHelpInterrupt", "89S8253").file, "89sxxsfr.hlp");
    EXPECT_EQ(HelpForCommand("MnHelpInterrupt", "89S8253").topic, 120);
    EXPECT_EQ(HelpForCommand("MnHelpSFR", "C515").kind, HelpRequest::Kind::Contents);
    EXPECT_EQ(HelpForCommand("MnHelpAMakro", "8032").topic, 1710);
    EXPECT_EQ(HelpForCommand("MnHelpKalender", "8032").kind, HelpRequest::Kind::Window);
    EXPECT_EQ(HelpForCommand("frmCompile", "8032").topic, 100);
    // Every topic a command names is among the main help's topics.
    const std::vector<int> topics = MainHelpTopics();
    for (const int number : {100, 1090, 1780, 1800, 1810, 1850})
        EXPECT_NE(std::find(topics.begin(), topics.end(), number), topics.end()) << number;
}

}  // namespace
}  // namespace korvex
