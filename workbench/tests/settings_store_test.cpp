// The settings at start and end of the workbench: the question on a read
// error, and a file that is replaced whole or not at all.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "base/cp1252.h"
#include "base/program_folder.h"
#include "testing/scripted_host.h"
#include "workbench/settings_file.h"
#include "workbench/settings_store.h"

namespace korvex {
namespace {

namespace fs = std::filesystem;

class SettingsStoreTest : public ::testing::Test {
  protected:
    void SetUp() override { folder_ = makePrivateTemporaryFolder(); }
    void TearDown() override { fs::remove_all(folder_); }

    std::string cfg() const { return folder_ + "korvex.cfg"; }
    std::string readCfg() const {
        std::ifstream in(cfg(), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
    long filesInFolder() const {
        return std::distance(fs::directory_iterator(folder_), fs::directory_iterator());
    }

    std::string folder_;
};

std::string question(const std::string& number, const std::string& description) {
    return text8("Fehler ") + number + text8(" wurde ausgelöst von Korvex:\r\n") + description +
           text8("\r\nMöchten Sie versuchen das Programm trotzdem auszuführen?");
}

TEST_F(SettingsStoreTest, FirstStartAsksRunsOnDefaultsAndWritesACompleteFile) {
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
}

TEST_F(SettingsStoreTest, BrokenFileAsksWithItsErrorAndNoEndsTheProgram) {
    std::ofstream(cfg(), std::ios::binary) << "\"asm\",\"lst\"\r\n";
    ScriptedHost host({MessageAnswer::No, MessageAnswer::Yes});
    EXPECT_FALSE(ReadSettings(folder_, host).has_value());
    EXPECT_EQ(host.boxes.at(0).text, question("62", "Einlesen hinter Dateiende"));
    EXPECT_EQ(ReadSettings(folder_, host)->sourceExtension, "a51");
}

TEST_F(SettingsStoreTest, WritingReplacesTheFileAndKeepsItsModeAndLink) {
    std::ofstream(folder_ + "real.cfg") << std::string(100000, 'x');  // longer than the new file
    fs::permissions(folder_ + "real.cfg", fs::perms(0640));
    fs::create_symlink(folder_ + "real.cfg", cfg());
    Settings settings = defaultSettings(folder_);
    settings.ControllerName = "C517";
    WriteSettings(settings, folder_);
    EXPECT_EQ(readCfg(), settingsText(settings));
    EXPECT_TRUE(fs::is_symlink(cfg()));
    EXPECT_EQ(fs::status(cfg()).permissions(), fs::perms(0640));
    EXPECT_EQ(filesInFolder(), 2);  // nothing left beside
}

TEST_F(SettingsStoreTest, FailedWriteRaisesAndLeavesNoHalfFile) {
    const auto failureOfWrite = [](const std::string& folder) {
        try {
            WriteSettings(defaultSettings(folder), folder);
        } catch (const RuntimeFailure& failure) {
            return failure.number();
        }
        return 0;
    };
    EXPECT_EQ(failureOfWrite(folder_ + "missing/"), 76);
    fs::create_directory(cfg());  // a folder where the file should be
    EXPECT_EQ(failureOfWrite(folder_), 75);
    EXPECT_EQ(filesInFolder(), 1);
}

}  // namespace
}  // namespace korvex
