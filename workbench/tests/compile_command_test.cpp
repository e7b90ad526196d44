// The compile command as the dialog and korvex-asm use it: which text is
// compiled, where the outputs go, and the findings as data.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "base/files.h"
#include "base/program_folder.h"
#include "workbench/compile_command.h"

namespace korvex {
namespace {

namespace fs = std::filesystem;

class CompileCommandTest : public ::testing::Test {
  protected:
    void SetUp() override {
        folder_ = makePrivateTemporaryFolder();
        fs::create_directory(folder_ + "tmp");
        write("chip.cpu", "VECTOR\r\n0000 RESET\r\nSFR\r\nE0 ACC\r\nBIT\r\nD7 CY\r\n");
        AssemblerSettings assemblerSettings;
        assemblerSettings.programFolder = folder_;
        assembler_ = std::make_unique<Assembler>(host_, assemblerSettings);
        settings_.hexExtension = "hex";
    }
    void TearDown() override { fs::remove_all(folder_); }
    void write(const std::string& name, const std::string& text) {
        std::ofstream(folder_ + name, std::ios::binary) << text;
    }
    CompileResult compile(const std::string& name, const std::string& text) {
        return compileWindow(
            *assembler_, host_, settings_,
            {folder_ + name, text, OutputSwitches{false, true, false, false}, folder_ + "tmp/"});
    }
    std::string folder_;
    QuietHost host_;
    Settings settings_;
    std::unique_ptr<Assembler> assembler_;
};

TEST_F(CompileCommandTest, AWindowsTextIsCompiledAndItsFindingsNamePlaces) {
    write("teil.a51", "NOP\r\nSJMP NIRGENDS\r\n");
    const CompileResult result =
        compile("haupt.a51", "#cpu chip\r\n#include teil.a51\r\nMOV A,#300\r\nRET\r\n");
    ASSERT_EQ(result.status, CompileStatus::Completed);
    EXPECT_TRUE(result.hasFindings);
    ASSERT_EQ(result.findings.size(), 2u);
    EXPECT_EQ(result.findings[0].file, "teil.a51");
    EXPECT_EQ(result.findings[0].line, 2);
    EXPECT_EQ(result.findings[0].number, 6);
    EXPECT_EQ(result.findings[0].text, "unbekannter Befehl bzw. Sprungziel nicht gefunden");
    EXPECT_EQ(result.findings[1].file, "haupt.a51");
    EXPECT_EQ(result.findings[1].line, 3);
    // The window was never saved: the outputs still land beside its file name.
    EXPECT_TRUE(fileExists(folder_ + "haupt.hex"));
    EXPECT_FALSE(fileExists(folder_ + "haupt.a51"));
}

TEST_F(CompileCommandTest, APartCompilesItsProjectAndNothingIsSaidWhy) {
    write("haupt.a51", "#cpu chip\r\nRET\r\n");
    CompileResult result = compile("teil.a51", "; #part of haupt.a51\r\nNOP\r\n");
    ASSERT_EQ(result.status, CompileStatus::Completed);
    EXPECT_EQ(result.sourceName, folder_ + "haupt.a51");
    EXPECT_FALSE(result.hasFindings) << result.report;
    EXPECT_TRUE(result.findings.empty());

    result = compile("teil.a51", "NOP\r\n#part of haupt.a51");
    EXPECT_EQ(result.status, CompileStatus::NothingToCompile);
    EXPECT_EQ(result.why, NothingToCompile::PartOfWithoutLineEnd);
    EXPECT_EQ(compile("Disassembling x.h51", "NOP\r\n").why, NothingToCompile::DisassemblyWindow);
}

}  // namespace
}  // namespace korvex
