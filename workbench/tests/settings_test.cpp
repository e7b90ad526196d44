// korvex.cfg as bytes: what is written, what reads back, what a read error or
// a damaged file leaves, the question at the start, and a file that is
// replaced whole or not at all.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include <sys/stat.h>

#include "base/cp1252.h"
#include "base/files.h"
#include "base/program_folder.h"
#include "base/text.h"
#include "testing/scripted_host.h"
#include "testing/unprivileged.h"
#include "workbench/settings_file.h"
#include "workbench/settings_store.h"
#include "workbench/user_settings_store.h"

namespace korvex {
namespace {

namespace fs = std::filesystem;

SettingsReadResult readText(const std::string& text) {
    std::istringstream in(text);
    return readSettingsFrom(in, "/p/");
}

int failureOf(const std::string& text) {
    const SettingsReadResult result = readText(text);
    return result.failure ? result.failure->number() : 0;
}

// Every value away from its default and from its neighbours.
const std::string kUnusual =
    "\"asm\",\"lst, x\",\"bin\",\"hex\",\"dis\",\"sym\",-32768,32767,1,-1,\"80C552\","
    "-2147483648,2147483647,4,\"Courier New\",12,#TRUE#,#FALSE#\r\n"
    "\"/home/j\xFCrgen/\",\"/a/\",\"/b/\",\"/h/\",\"/d/\",\"/s/\",5,6,7,8\r\n"
    "-2147483633\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n10\r\n"
    "20,1,#TRUE#,#FALSE#,#TRUE#\r\n";
const std::string kFirst13 = kUnusual.substr(0, kUnusual.rfind("20,1"));

TEST(SettingsFile, EveryValueHasItsPlaceAndWritesBackUnchanged) {
    EXPECT_EQ(settingsText(defaultSettings("/p/")),
              "\"a51\",\"l51\",\"b51\",\"h51\",\"d51\",\"s51\",9460,4000,9460,4000,\"8032\",0,0,0,"
              "\"MS Sans Serif\",10,#FALSE#,#FALSE#\r\n"
              "\"/p/\",\"/p/\",\"/p/\",\"/p/\",\"/p/\",\"/p/\",600,600,5910,4890\r\n"
              "-2147483636\r\n-2147483643\r\n12648447\r\n15792639\r\n16775664\r\n8437935\r\n"
              "13697023\r\n11979443\r\n16056316\r\n12766650\r\n32768\r\n"
              "25,0,#FALSE#,#FALSE#,#FALSE#\r\n");
    const Settings s = readText(kUnusual).settings;
    EXPECT_EQ((std::vector<std::string>{s.listingExtension, s.ControllerName, s.sourceFolder}),
              (std::vector<std::string>{"lst, x", "80C552", "/home/j\xFCrgen/"}));
    EXPECT_EQ((std::vector<long>{s.HexWindowLeft, s.ReferenceWindowLeft, s.CompileWindowHeight,
                                 s.Colours[0], s.Colours[10], s.TwoWindowsAtStart}),
              (std::vector<long>{-32768, -2147483648L, 8, systemColour(0x0F), 10, 1}));
    EXPECT_TRUE(s.EditorFontBold && !s.EditorFontItalic && s.BookmarksEnabled && s.NoRightWrap);
    EXPECT_EQ(s.toolbar, (ToolbarState{4, false, true}));
    EXPECT_EQ(settingsText(s), kUnusual);

    // Linux line ends, and line ends in place of commas, with blanks round them.
    std::string text = replaceAll(kUnusual, "\r\n", "\n");
    text = replaceAll(replaceAll(text, "\",\"", "\"\n  \""), "#,", "# \n");
    EXPECT_EQ(readText(text).settings, s);
    // Align is the low three bits of the toolbar flags, flat the fourth, visible the fifth.
    const SettingsReadResult flags = readText(kFirst13 + "-1,0,0,0,0\r\n");
    EXPECT_EQ(flags.settings.toolbar, (ToolbarState{7, true, true}));
    EXPECT_TRUE(settingsText(flags.settings).ends_with("\r\n31,0,#FALSE#,#FALSE#,#FALSE#\r\n"));
}

TEST(SettingsFile, AReadErrorKeepsWhatWasReadBeforeIt) {
    // Cut after line 13: the reference window is read, line 14 keeps its defaults.
    SettingsReadResult result = readText(kFirst13);
    EXPECT_EQ(result.failure->number(), 62);
    Settings expected = defaultSettings("/p/");
    expected.ReferenceWindowLeft = -2147483647 - 1;
    expected.ReferenceWindowTop = 2147483647;
    expected.ReferenceWindowTab = 4;
    EXPECT_EQ(result.settings, expected);
    // The toolbar was read and applied before TwoWindowsAtStart overflowed.
    result = readText(kFirst13 + "12,40000,#TRUE#\r\n");
    EXPECT_EQ(result.failure->number(), 6);
    expected.toolbar = ToolbarState{4, true, false};
    EXPECT_EQ(result.settings, expected);
    // An error before the reference window leaves all defaults.
    result = readText("\"asm\",\"x\",\"x\",\"x\",\"x\",\"x\",1,zwei,3\r\n");
    EXPECT_EQ(result.failure->number(), 13);
    EXPECT_EQ(result.settings, defaultSettings("/p/"));

    const std::string good = settingsText(defaultSettings("/p/"));
    EXPECT_EQ(failureOf(std::string("\0\xFF\x01\x80,\0\0", 7)), 62);
    EXPECT_EQ(failureOf(std::string(good).erase(4, 1)), 13);  // a lost quote shifts the items
    EXPECT_EQ(failureOf(std::string(good).replace(good.find("9460"), 4, 5000, '9')), 6);
    EXPECT_EQ(failureOf(good + std::string("\0rest\"", 6)), 0);  // never read
}

TEST(SettingsFile, UnusableExtensionsAreAReadErrorWithTheFallback) {
    // Commas alone or line ends alone read as empty items: every output
    // would land on "prog.".
    for (const std::string& text : {std::string(200, ','), std::string(100, '\n')}) {
        const SettingsReadResult result = readText(text);
        ASSERT_TRUE(result.failure.has_value());
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

class SettingsStoreTest : public ::testing::Test {
  protected:
    void SetUp() override { folder_ = makePrivateTemporaryFolder(); }
    void TearDown() override { fs::remove_all(folder_); }
    std::string cfg() const { return folder_ + "korvex.cfg"; }
    long files() const { return std::distance(fs::directory_iterator(folder_), {}); }
    std::string folder_;
};

std::string question(const std::string& number, const std::string& description) {
    return text8("Fehler ") + number + text8(" wurde ausgelöst von Korvex:\r\n") + description +
           text8("\r\nMöchten Sie versuchen das Programm trotzdem auszuführen?");
}

TEST_F(SettingsStoreTest, AReadErrorAsksAndNoEndsTheProgram) {
    ScriptedHost host({MessageAnswer::Yes});
    const std::optional<Settings> settings = ReadSettings(folder_, host);
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].title, "Fehler");
    EXPECT_EQ(host.boxes[0].text, question("53", "Datei nicht gefunden"));
    EXPECT_EQ(host.boxes[0].buttons, MessageButtons::YesNo);
    ASSERT_EQ(settings, defaultSettings(folder_));
    WriteSettings(*settings, folder_);
    ScriptedHost quiet;
    EXPECT_EQ(ReadSettings(folder_, quiet), settings);
    EXPECT_TRUE(quiet.boxes.empty());

    writeWholeFile(cfg(), "\"asm\",\"lst\"\r\n");
    ScriptedHost no({MessageAnswer::No});
    EXPECT_FALSE(ReadSettings(folder_, no).has_value());
    EXPECT_EQ(no.boxes.at(0).text, question("62", "Einlesen hinter Dateiende"));
}

TEST_F(SettingsStoreTest, ThingsThatAreNoPlainFileAreAccessErrors) {
    fs::create_directory(cfg());
    EXPECT_EQ(readSettingsFile(folder_).failure->number(), 75);
    fs::remove(cfg());
    ASSERT_EQ(::mkfifo(cfg().c_str(), 0600), 0);  // opening it would wait for a writer
    EXPECT_EQ(readSettingsFile(folder_).failure->number(), 75);
    fs::remove(cfg());
    fs::create_symlink("/dev/zero", cfg());
    EXPECT_EQ(readSettingsFile(folder_).failure->number(), 75);
    // A file that others may not read is refused, not read as empty.
    fs::remove(cfg());
    writeWholeFile(cfg(), settingsText(defaultSettings(folder_)));
    fs::permissions(cfg(), fs::perms::owner_read | fs::perms::owner_write);
    fs::permissions(folder_, fs::perms::all);
    EXPECT_EQ(testing::runUnprivileged([&] { return readSettingsFile(folder_).failure->number(); }),
              70);
}

TEST_F(SettingsStoreTest, WritingReplacesTheFileWholeAndKeepsItsModeAndLink) {
    writeWholeFile(folder_ + "real.cfg", std::string(100000, 'x'));  // longer than the new file
    fs::permissions(folder_ + "real.cfg", fs::perms(0640));
    fs::create_symlink(folder_ + "real.cfg", cfg());
    Settings settings = defaultSettings(folder_);
    settings.ControllerName = "C517";
    WriteSettings(settings, folder_);
    EXPECT_EQ(readWholeFile(cfg()), settingsText(settings));
    EXPECT_TRUE(fs::is_symlink(cfg()));
    EXPECT_EQ(fs::status(cfg()).permissions(), fs::perms(0640));
    EXPECT_EQ(files(), 2);  // nothing left beside

    const auto failureOfWrite = [](const std::string& folder) {
        try {
            WriteSettings(defaultSettings(folder), folder);
        } catch (const RuntimeFailure& failure) {
            return failure.number();
        }
        return 0;
    };
    EXPECT_EQ(failureOfWrite(folder_ + "missing/"), 76);
    fs::remove(cfg());
    fs::create_directory(cfg());  // a folder where the file should be
    EXPECT_EQ(failureOfWrite(folder_), 75);
    EXPECT_EQ(files(), 2);
}

// The in-memory per-user store behaves as the classic one the recent-file
// list was written against.
TEST(MemoryUserSettingsStore, KeysIgnoreCaseAndListInTheOrderFirstSaved) {
    MemoryUserSettingsStore store;
    EXPECT_EQ(store.GetSetting(kRecentFilesSection, "RecentFile1", "none"), "none");
    EXPECT_TRUE(store.GetAllSettings(kRecentFilesSection).empty());
    store.SaveSetting(kRecentFilesSection, "RecentFile2", "/b.a51");
    store.SaveSetting(kRecentFilesSection, "RecentFile1", "/a.a51");
    store.SaveSetting("Other", "RecentFile1", "/elsewhere");
    store.SaveSetting("recent files", "RECENTFILE2", "/c.a51");
    EXPECT_EQ(store.GetSetting(kRecentFilesSection, "recentfile2", ""), "/c.a51");
    const UserSettingsStore::Entries expected{{"RecentFile2", "/c.a51"}, {"RecentFile1", "/a.a51"}};
    EXPECT_EQ(store.GetAllSettings(kRecentFilesSection), expected);
}

}  // namespace
}  // namespace korvex
