// The help as built: the build's own check (every topic its page, every
// controller its register pages, every example assembling clean), and the
// register pages holding what the drivers name.

#include <gtest/gtest.h>

#include <filesystem>

#include "assembler/cpu_driver.h"
#include "base/files.h"
#include "help_check.h"
#include "workbench/help_pages.h"

namespace korvex {
namespace {

const std::string kProgramFolder = KORVEX_PROGRAM_DIR;  // ends in "/"
const std::string kDrivers = KORVEX_DRIVER_FOLDER;

TEST(HelpPages, EveryTopicHasItsPageAndEveryExampleAssembles) {
    const std::vector<std::string> problems = help::checkHelp(kProgramFolder, kDrivers);
    for (const std::string& problem : problems) ADD_FAILURE() << problem;
    // A page that lost its examples would pass: there are more than sixty.
    int examples = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kProgramFolder + "help"))
        if (entry.path().extension() == ".html")
            examples +=
                static_cast<int>(help::examplesOf(readWholeFile(entry.path().string())).size());
    EXPECT_GT(examples, 60);
}

TEST(HelpPages, RegisterPagesHoldEveryNameOfTheirDriver) {
    const DriverReading driver = readCpuDriverFile(kDrivers + "C517.cpu");
    const std::string sfrs =
        readWholeFile(HelpPagePath(kProgramFolder, HelpForCommand("MnHelpSFR", "C517")));
    const std::string bits =
        readWholeFile(HelpPagePath(kProgramFolder, HelpForCommand("MnHelpSFRBit", "C517")));
    for (const DriverName& sfr : driver.driver.sfrs)
        EXPECT_NE(sfrs.find("<code>" + sfr.name + "</code>"), std::string::npos) << sfr.name;
    for (const DriverName& bit : driver.driver.bits)
        EXPECT_NE(bits.find("<code>" + bit.name + "</code>"), std::string::npos) << bit.name;
}

}  // namespace
}  // namespace korvex
