// No settings file, however damaged, crashes or stops the start: each ends in
// settings to run on, with at most one of the read errors.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>

#include <sys/stat.h>

#include "base/program_folder.h"
#include "testing/unprivileged.h"
#include "workbench/settings_file.h"

namespace korvex {
namespace {

namespace fs = std::filesystem;

int failureOf(const std::string& bytes) {
    std::istringstream in(bytes);
    const SettingsReadResult result = readSettingsFrom(in, "/p/");
    return result.failure ? result.failure->number() : 0;
}

TEST(OddSettingsFiles, DamagedContentGivesAReadError) {
    const std::string good = settingsText(defaultSettings("/p/"));
    EXPECT_EQ(failureOf(std::string("\0\xFF\x01\x80,\0\0", 7)), 62);
    EXPECT_EQ(failureOf(std::string(good).erase(4, 1)), 13);  // a lost quote shifts the items
    EXPECT_EQ(failureOf(std::string(good).replace(good.find("9460"), 4, 5000, '9')), 6);
    EXPECT_EQ(failureOf(good + std::string("\0rest\"", 6)), 0);  // never read
}

TEST(OddSettingsFiles, RandomDamageNeverCrashes) {
    const std::string good = settingsText(defaultSettings("/p/"));
    const std::string meaningful = "\",\r\n #TRUEFALS0123456789.-+eE";
    std::mt19937 random(51);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes = good;
        for (int change = 1 + static_cast<int>(random() % 20); change > 0; --change) {
            const std::size_t at = random() % (bytes.size() + 1);
            if (random() % 3 == 0) {
                bytes.erase(at, 1 + random() % 8);
            } else {
                bytes.insert(at, 1,
                             random() % 2 ? meaningful[random() % meaningful.size()]
                                          : static_cast<char>(random()));
            }
        }
        const int failure = failureOf(bytes);
        EXPECT_TRUE(failure == 0 || failure == 6 || failure == 13 || failure == 62) << failure;
    }
}

TEST(OddSettingsFiles, ThingsThatAreNoPlainFileAreAccessErrors) {
    const std::string folder = makePrivateTemporaryFolder();
    const std::string cfg = folder + "korvex.cfg";
    fs::create_directory(cfg);
    EXPECT_EQ(readSettingsFile(folder).failure->number(), 75);
    fs::remove(cfg);
    ASSERT_EQ(::mkfifo(cfg.c_str(), 0600), 0);  // opening it would wait for a writer
    EXPECT_EQ(readSettingsFile(folder).failure->number(), 75);
    fs::remove(cfg);
    fs::create_symlink("/dev/zero", cfg);
    const SettingsReadResult result = readSettingsFile(folder);
    EXPECT_EQ(result.failure->number(), 75);
    EXPECT_EQ(result.settings, defaultSettings(folder));

    // A file that others may not read is refused, not read as empty.
    fs::remove(cfg);
    std::ofstream(cfg) << settingsText(defaultSettings(folder));
    fs::permissions(cfg, fs::perms::owner_read | fs::perms::owner_write);
    fs::permissions(folder, fs::perms::all);
    EXPECT_EQ(korvex::testing::runUnprivileged(
                  [&] { return readSettingsFile(folder).failure->number(); }),
              70);
    fs::remove_all(folder);
}

}  // namespace
}  // namespace korvex
