// Which folder is the program's folder, and that only writing creates one.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

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
        fs::create_directories(root + "prefix/share/korvex");
        fs::create_directories(root + "home");
        std::ofstream(root + "prefix/share/korvex/8051.cpu") << "VECTOR\r\n0000 RESET\r\n";
        // As an installed program sees itself.
        sources.executableFolder = root + "prefix/bin";
        sources.installedData = root + "prefix/share/korvex";
        sources.homeFolder = root + "home";
    }
    void TearDown() override {
        std::error_code ec;
        fs::remove_all(root, ec);
    }
    bool isEmptyFolder(const std::string& folder) const {
        return fs::is_directory(folder) && fs::is_empty(folder);
    }

    std::string root;
    ProgramFolderSources sources;
};

TEST_F(ProgramFolderTest, OrderOfTheSources) {
    EXPECT_EQ(resolveProgramFolder(sources), root + "prefix/share/korvex/");
    fs::create_directories(root + "home/.local/share/korvex");
    std::ofstream(root + "home/.local/share/korvex/8051.cpu") << "VECTOR\r\n";
    EXPECT_EQ(resolveProgramFolder(sources), root + "home/.local/share/korvex/");
    std::ofstream(root + "prefix/bin/8051.cpu") << "VECTOR\r\n";
    EXPECT_EQ(resolveProgramFolder(sources), root + "prefix/bin/");
    sources.environment = root + "env";
    EXPECT_EQ(resolveProgramFolder(sources), root + "env/");
    sources.explicitFolder = root + "given/";
    EXPECT_EQ(resolveProgramFolder(sources), root + "given/");
    // Named folders are taken as given, even before they exist.
    EXPECT_FALSE(fs::exists(root + "env"));
    EXPECT_FALSE(fs::exists(root + "given"));
}

TEST_F(ProgramFolderTest, ReadingCreatesNoFolder) {
    // An empty home: the installed data is read where it lies.
    EXPECT_EQ(resolveProgramFolder(sources), root + "prefix/share/korvex/");
    EXPECT_TRUE(isEmptyFolder(root + "home"));

    // A home that does not exist stays so.
    sources.homeFolder = root + "nonexistent/home";
    EXPECT_EQ(resolveProgramFolder(sources), root + "prefix/share/korvex/");
    EXPECT_FALSE(fs::exists(root + "nonexistent"));

    // No drivers anywhere: the per-user folder is named (for the report of
    // the missing driver), but not made.
    fs::remove(root + "prefix/share/korvex/8051.cpu");
    sources.homeFolder = root + "home";
    EXPECT_EQ(resolveProgramFolder(sources), root + "home/.local/share/korvex/");
    EXPECT_TRUE(isEmptyFolder(root + "home"));

    // No home at all never means a folder below the root.
    sources.homeFolder.clear();
    EXPECT_EQ(resolveProgramFolder(sources), root + "prefix/share/korvex/");
}

TEST_F(ProgramFolderTest, WritingPreparesThePerUserFolder) {
    fs::create_directories(root + "home/.local/share/korvex");
    std::ofstream(root + "home/.local/share/korvex/korvex.cfg") << "eigene Einstellungen";
    EXPECT_EQ(prepareProgramFolderForWriting(sources), root + "home/.local/share/korvex/");
    EXPECT_TRUE(fs::exists(root + "home/.local/share/korvex/8051.cpu"));
    std::ifstream kept(root + "home/.local/share/korvex/korvex.cfg");
    std::string text;
    std::getline(kept, text);
    EXPECT_EQ(text, "eigene Einstellungen");
    // What was written is read from there from now on.
    EXPECT_EQ(resolveProgramFolder(sources), root + "home/.local/share/korvex/");

    // Folders that are named or beside the program are written as they are.
    std::ofstream(root + "prefix/bin/8051.cpu") << "VECTOR\r\n";
    EXPECT_EQ(prepareProgramFolderForWriting(sources), root + "prefix/bin/");
    sources.explicitFolder = root + "given";
    EXPECT_EQ(prepareProgramFolderForWriting(sources), root + "given/");
}

TEST_F(ProgramFolderTest, WritingNeverCreatesAHomeFolder) {
    sources.homeFolder = root + "nonexistent/home";
    EXPECT_EQ(prepareProgramFolderForWriting(sources), "");
    EXPECT_FALSE(fs::exists(root + "nonexistent"));
    sources.homeFolder.clear();
    EXPECT_EQ(prepareProgramFolderForWriting(sources), "");
    // A fresh home gets the standard folders below it.
    sources.homeFolder = root + "home";
    EXPECT_EQ(prepareProgramFolderForWriting(sources), root + "home/.local/share/korvex/");
}

}  // namespace
}  // namespace korvex
