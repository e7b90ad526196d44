// korvex-wizard writes a start-up program, korvex-asm assembles it with the
// shipped 80C32 driver: no row of the report may carry a finding.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "testing/process.h"

namespace {

std::string run(const std::string& command, int& exitCode) {
    const korvex::testing::ProcessResult result = korvex::testing::runProcess(command + " 2>&1");
    exitCode = result.exitCode;
    return result.output;
}

// The matrix of settings is assembled in-process by the wizards' own tests;
// here the two programs are chained once, as a user chains them.
TEST(WizardPipelineTest, AGeneratedProgramAssemblesWithoutFindings) {
    const korvex::testing::ScratchFolder scratch;
    const std::string source = scratch.path() + "start.a51";
    int exitCode = -1;
    const std::string wizard =
        run(std::string(KORVEX_WIZARD) +
                " 52 --date 01.01.2026 --set UCheck1=1 --set UOption1=3 --set UCombo1=1 "
                "--set UCombo4=4800 --set T0Combo1=1 --set 'ICheck1(1)=1' --set ICheck0=1 -o " +
                source,
            exitCode);
    ASSERT_EQ(exitCode, 0) << wizard;
    const std::string report = run(std::string(KORVEX_ASM) + " --bin " + source, exitCode);
    EXPECT_EQ(exitCode, 0) << report;
    EXPECT_EQ(report.find("Zeile "), std::string::npos) << report;
    EXPECT_TRUE(std::filesystem::exists(scratch.path() + "start.b51"));
}

}  // namespace
