// Which folder is the program's folder.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "base/program_folder.h"

namespace korvex {
namespace {

namespace fs = std::filesystem;

TEST(ProgramFolderTest, OrderOfTheSources) {
    const std::string root = makePrivateTemporaryFolder();
    ASSERT_FALSE(root.empty());
    fs::create_directories(root + "exe");
    fs::create_directories(root + "installed");
    std::ofstream(root + "installed/8051.cpu") << "VECTOR\r\n0000 RESET\r\n";

    ProgramFolderSources sources;
    sources.executableFolder = root + "exe";
    sources.homeFolder = root + "home";
    sources.installedData = root + "installed";
    // Without drivers beside the program the user's folder is seeded.
    EXPECT_EQ(resolveProgramFolder(sources), root + "home/.local/share/korvex/");
    EXPECT_TRUE(fs::exists(root + "home/.local/share/korvex/8051.cpu"));

    std::ofstream(root + "exe/8051.cpu") << "VECTOR\r\n";
    EXPECT_EQ(resolveProgramFolder(sources), root + "exe/");
    sources.environment = root + "env";
    EXPECT_EQ(resolveProgramFolder(sources), root + "env/");
    sources.explicitFolder = root + "given/";
    EXPECT_EQ(resolveProgramFolder(sources), root + "given/");
    fs::remove_all(root);
}

}  // namespace
}  // namespace korvex
