// korvex.cfg as bytes: what is written, what reads back, and what a read
// error leaves.

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "base/text.h"
#include "workbench/settings_file.h"

namespace korvex {
namespace {

SettingsReadResult readText(const std::string& text) {
    std::istringstream in(text);
    return readSettingsFrom(in, "/p/");
}

// Every value away from its default and from its neighbours.
const std::string kUnusual =
    "\"asm\",\"lst, x\",\"bin\",\"hex\",\"dis\",\"sym\",-32768,32767,1,-1,\"80C552\","
    "-2147483648,2147483647,4,\"Courier New\",12,#TRUE#,#FALSE#\r\n"
    "\"/home/j\xFCrgen/\",\"/a/\",\"/b/\",\"/h/\",\"/d/\",\"/s/\",5,6,7,8\r\n"
    "-2147483633\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n10\r\n"
    "20,1,#TRUE#,#FALSE#,#TRUE#\r\n";

std::string firstLines(const std::string& text, int count) {
    std::size_t end = 0;
    for (int i = 0; i < count; ++i) end = text.find("\r\n", end) + 2;
    return text.substr(0, end);
}

TEST(SettingsFile, DefaultsAreWrittenInFourteenLines) {
    EXPECT_EQ(settingsText(defaultSettings("/p/")),
              "\"a51\",\"l51\",\"b51\",\"h51\",\"d51\",\"s51\",9460,4000,9460,4000,\"8032\",0,0,0,"
              "\"MS Sans Serif\",10,#FALSE#,#FALSE#\r\n"
              "\"/p/\",\"/p/\",\"/p/\",\"/p/\",\"/p/\",\"/p/\",600,600,5910,4890\r\n"
              "-2147483636\r\n-2147483643\r\n12648447\r\n15792639\r\n16775664\r\n8437935\r\n"
              "13697023\r\n11979443\r\n16056316\r\n12766650\r\n32768\r\n"
              "25,0,#FALSE#,#FALSE#,#FALSE#\r\n");
}

TEST(SettingsFile, EveryValueHasItsPlaceAndWritesBackUnchanged) {
    const SettingsReadResult read = readText(kUnusual);
    ASSERT_FALSE(read.failure.has_value());
    const Settings& s = read.settings;
    EXPECT_EQ((std::vector<std::string>{s.sourceExtension, s.listingExtension, s.binaryExtension,
                                        s.hexExtension, s.disassemblyExtension, s.symbolExtension,
                                        s.ControllerName, s.EditorFontName, s.sourceFolder,
                                        s.symbolFolder}),
              (std::vector<std::string>{"asm", "lst, x", "bin", "hex", "dis", "sym", "80C552",
                                        "Courier New", "/home/j\xFCrgen/", "/s/"}));
    EXPECT_EQ(
        (std::vector<long>{s.HexWindowLeft, s.HexWindowTop, s.HexWindowWidth, s.HexWindowHeight,
                           s.ReferenceWindowLeft, s.ReferenceWindowTop, s.ReferenceWindowTab,
                           s.EditorFontSize, s.CompileWindowLeft, s.CompileWindowHeight,
                           s.Colours[0], s.Colours[10], s.TwoWindowsAtStart}),
        (std::vector<long>{-32768, 32767, 1, -1, -2147483648L, 2147483647, 4, 12, 5, 8,
                           systemColour(0x0F), 10, 1}));
    EXPECT_EQ((std::vector<bool>{s.EditorFontBold, s.EditorFontItalic, s.BookmarksEnabled,
                                 s.HangingIndent, s.NoRightWrap}),
              (std::vector<bool>{true, false, true, false, true}));
    EXPECT_EQ(s.toolbar, (ToolbarState{4, false, true}));
    EXPECT_EQ(settingsText(s), kUnusual);
    EXPECT_EQ(readText(settingsText(defaultSettings("/p/"))).settings, defaultSettings("/p/"));
}

TEST(SettingsFile, ToolbarFlagsKeepOnlyTheirFiveBits) {
    // Align is the low three bits, flat the fourth, visible the fifth.
    const SettingsReadResult read = readText(firstLines(kUnusual, 13) + "-1,0,0,0,0\r\n");
    EXPECT_EQ(read.settings.toolbar, (ToolbarState{7, true, true}));
    EXPECT_EQ(readText(firstLines(kUnusual, 13) + "1048594,0,0,0,0").settings.toolbar,
              (ToolbarState{2, false, true}));
    EXPECT_TRUE(settingsText(read.settings).ends_with("\r\n31,0,#FALSE#,#FALSE#,#FALSE#\r\n"));
}

TEST(SettingsFile, HandEditedLayoutReadsTheSame) {
    // Linux line ends, and line ends in place of commas, with blanks round them.
    std::string text = replaceAll(kUnusual, "\r\n", "\n");
    text = replaceAll(replaceAll(text, "\",\"", "\"\n  \""), "#,", "# \n");
    EXPECT_EQ(readText(text).settings, readText(kUnusual).settings);
}

TEST(SettingsFile, FileCutAfterLineThirteenKeepsOnlyTheReferenceWindow) {
    const SettingsReadResult result = readText(firstLines(kUnusual, 13));
    ASSERT_TRUE(result.failure.has_value());
    EXPECT_EQ(result.failure->number(), 62);
    Settings expected = defaultSettings("/p/");
    expected.ReferenceWindowLeft = -2147483647 - 1;
    expected.ReferenceWindowTop = 2147483647;
    expected.ReferenceWindowTab = 4;
    EXPECT_EQ(result.settings, expected);  // line 14 unread: defaults, toolbar as designed
}

TEST(SettingsFile, ErrorInLineFourteenKeepsWhatWasReadThere) {
    // The toolbar was read and applied before TwoWindowsAtStart overflowed.
    const SettingsReadResult result = readText(firstLines(kUnusual, 13) + "12,40000,#TRUE#\r\n");
    ASSERT_TRUE(result.failure.has_value());
    EXPECT_EQ(result.failure->number(), 6);
    Settings expected = readText(firstLines(kUnusual, 13)).settings;
    expected.toolbar = ToolbarState{4, true, false};
    EXPECT_EQ(result.settings, expected);
}

TEST(SettingsFile, ErrorBeforeTheReferenceWindowLeavesAllDefaults) {
    const SettingsReadResult result =
        readText("\"asm\",\"x\",\"x\",\"x\",\"x\",\"x\",1,zwei,3\r\n");
    ASSERT_TRUE(result.failure.has_value());
    EXPECT_EQ(result.failure->number(), 13);
    EXPECT_EQ(result.settings, defaultSettings("/p/"));
}

TEST(SettingsFile, UnusableExtensionsAreAReadErrorWithTheFallback) {
    // Commas alone or line ends alone read as empty items: every output
    // would land on "prog.".
    for (const std::string& text : {std::string(200, ','), std::string(100, '\n')}) {
        const SettingsReadResult result = readText(text);
        ASSERT_TRUE(result.failure.has_value());
        EXPECT_EQ(result.settings, afterReadError(result.settings, "/p/"));
        EXPECT_EQ(result.settings.hexExtension, "h51");
    }
    // A listing extension equal to the source's would overwrite the source.
    std::string clash = kUnusual;
    clash.replace(clash.find("lst, x"), 6, "ASM");
    const SettingsReadResult result = readText(clash);
    ASSERT_TRUE(result.failure.has_value());
    EXPECT_EQ(result.settings.listingExtension, "l51");
    EXPECT_NE(result.problem.find("Programmcode und Listing"), std::string::npos);
    // An extension can't lead out of the source's folder.
    std::string escape = kUnusual;
    escape.replace(escape.find("hex"), 3, "x/../../y");
    EXPECT_NE(readText(escape).problem.find("Trennzeichen"), std::string::npos);
}

}  // namespace
}  // namespace korvex
