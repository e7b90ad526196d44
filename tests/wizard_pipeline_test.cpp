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

TEST(WizardPipelineTest, GeneratedProgramsAssembleWithoutFindings) {
    const korvex::testing::ScratchFolder scratch;
    const std::string& folder = scratch.path();
    const std::vector<std::string> settings = {
        "",
        "--set SCheck1=1 --set SCombo1=2 --set SText2=30",
        "--set UCheck1=1 --set UOption1=1 --set UCombo3=9600",
        "--set UCheck1=1 --set UOption1=3 --set UCombo1=1 --set UCombo4=4800",
        "--set T0Combo1=1 --set T0Check2=1 --set T1Check0=1 --set 'ICheck1(1)=1' --set "
        "'ICheck1(3)=1'",
        "--set T2Check1=1 --set 'ICheck1(5)=1' --set 'ICheck2(5)=1' --set ICheck0=1",
    };
    for (std::size_t i = 0; i < settings.size(); ++i) {
        SCOPED_TRACE(settings[i]);
        const std::string source = folder + "start" + std::to_string(i) + ".a51";
        int exitCode = -1;
        const std::string wizard = run(
            std::string(KORVEX_WIZARD) + " 52 --date 01.01.2026 " + settings[i] + " -o " + source,
            exitCode);
        ASSERT_EQ(exitCode, 0) << wizard;
        const std::string report = run(std::string(KORVEX_ASM) + " --bin " + source, exitCode);
        EXPECT_LE(exitCode, 1) << report;
        EXPECT_EQ(report.find("Zeile "), std::string::npos) << report;
        EXPECT_TRUE(std::filesystem::exists(folder + "start" + std::to_string(i) + ".b51"));
    }
}

}  // namespace
