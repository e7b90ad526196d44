// Which folder is the program's folder, and that only writing creates one.

#include <gtest/gtest.h>

#include <filesystem>

#include "base/files.h"
#include "base/program_folder.h"

namespace korvex {
namespace {

namespace fs = std::filesystem;

class ProgramFolderTest : public ::testing::Test {
  protected:
    void SetUp() override {
        root = makePrivateTemporaryFolder();
        ASSERT_FALSE(root.empty());
        fs::create_directories(root + "prefix/bin");
        fs::create_directories(root + "home");
        write("prefix/share/korvex/8051.cpu");
        // As an installed program sees itself.
        sources.executableFolder = root + "prefix/bin";
        sources.installedData = root + "prefix/share/korvex";
        sources.homeFolder = root + "home";
    }
    void TearDown() override { fs::remove_all(root); }
    void write(const std::string& name) {
        fs::create_directories(fs::path(root + name).parent_path());
        writeWholeFile(root + name, "VECTOR\r\n0000 RESET\r\n");
    }
    bool emptyHome() const { return fs::is_empty(root + "home"); }

    std::string root;
    ProgramFolderSources sources;
};

TEST_F(ProgramFolderTest, OrderOfTheSourcesAndReadingCreatesNoFolder) {
    EXPECT_EQ(resolveProgramFolder(sources), root + "prefix/share/korvex/");
    EXPECT_TRUE(emptyHome());
    // No drivers anywhere: the per-user folder is named (for the report of
    // the missing driver), but not made.
    fs::remove(root + "prefix/share/korvex/8051.cpu");
    EXPECT_EQ(resolveProgramFolder(sources), root + "home/.local/share/korvex/");
    EXPECT_TRUE(emptyHome());
    // No home at all never means a folder below the root; a missing home stays so.
    sources.homeFolder.clear();
    EXPECT_EQ(resolveProgramFolder(sources), root + "prefix/share/korvex/");
    write("prefix/share/korvex/8051.cpu");
    sources.homeFolder = root + "nonexistent/home";
    EXPECT_EQ(resolveProgramFolder(sources), root + "prefix/share/korvex/");
    EXPECT_FALSE(fs::exists(root + "nonexistent"));

    sources.homeFolder = root + "home";
    write("home/.local/share/korvex/8051.cpu");
    EXPECT_EQ(resolveProgramFolder(sources), root + "home/.local/share/korvex/");
    write("prefix/bin/8051.cpu");
    EXPECT_EQ(resolveProgramFolder(sources), root + "prefix/bin/");
    sources.environment = root + "env";
    EXPECT_EQ(resolveProgramFolder(sources), root + "env/");
    sources.explicitFolder = root + "given/";
    EXPECT_EQ(resolveProgramFolder(sources), root + "given/");
    // Named folders are taken as given, even before they exist.
    EXPECT_FALSE(fs::exists(root + "env") || fs::exists(root + "given"));
}

TEST_F(ProgramFolderTest, WritingPreparesThePerUserFolderButNeverAHome) {
    sources.homeFolder = root + "nonexistent/home";
    EXPECT_EQ(prepareProgramFolderForWriting(sources), "");
    EXPECT_FALSE(fs::exists(root + "nonexistent"));
    sources.homeFolder.clear();
    EXPECT_EQ(prepareProgramFolderForWriting(sources), "");

    // A fresh home gets the standard folders below it, and a second
    // preparation leaves the user's files as they are.
    sources.homeFolder = root + "home";
    EXPECT_EQ(prepareProgramFolderForWriting(sources), root + "home/.local/share/korvex/");
    EXPECT_TRUE(fs::exists(root + "home/.local/share/korvex/8051.cpu"));
    writeWholeFile(root + "home/.local/share/korvex/korvex.cfg", "eigene Einstellungen");
    EXPECT_EQ(prepareProgramFolderForWriting(sources), root + "home/.local/share/korvex/");
    EXPECT_EQ(readWholeFile(root + "home/.local/share/korvex/korvex.cfg"), "eigene Einstellungen");
    // What was written is read from there from now on.
    EXPECT_EQ(resolveProgramFolder(sources), root + "home/.local/share/korvex/");

    // Folders that are named or beside the program are written as they are.
    write("prefix/bin/8051.cpu");
    EXPECT_EQ(prepareProgramFolderForWriting(sources), root + "prefix/bin/");
    sources.explicitFolder = root + "given";
    EXPECT_EQ(prepareProgramFolderForWriting(sources), root + "given/");
}

}  // namespace
}  // namespace korvex
