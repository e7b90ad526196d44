// The compile command as the dialog and korvex-asm use it: which text is
// compiled, where the outputs go, and the findings as data.

#include <gtest/gtest.h>

#include <filesystem>

#include "base/files.h"
#include "base/program_folder.h"
#include "workbench/compile_command.h"

namespace korvex {
namespace {

TEST(CompileCommand, AWindowsTextOrItsProjectIsCompiledAndFindingsNamePlaces) {
    const std::string folder = makePrivateTemporaryFolder();
    std::filesystem::create_directory(folder + "tmp");
    writeWholeFile(folder + "chip.cpu",
                   "VECTOR\r\n0000 RESET\r\nSFR\r\nE0 ACC\r\nBIT\r\nD7 CY\r\n");
    writeWholeFile(folder + "teil.a51", "NOP\r\nSJMP NIRGENDS\r\n");
    QuietHost host;
    AssemblerSettings assemblerSettings;
    assemblerSettings.programFolder = folder;
    Assembler assembler(host, assemblerSettings);
    Settings settings;
    settings.hexExtension = "hex";
    const auto compile = [&](const std::string& name, const std::string& text) {
        return compileWindow(
            assembler, host, settings,
            {folder + name, text, OutputSwitches{false, true, false, false}, folder + "tmp/"});
    };
    CompileResult result =
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
    EXPECT_TRUE(fileExists(folder + "haupt.hex"));
    EXPECT_FALSE(fileExists(folder + "haupt.a51"));

    writeWholeFile(folder + "haupt.a51", "#cpu chip\r\nRET\r\n");
    result = compile("teil.a51", "; #part of haupt.a51\r\nNOP\r\n");
    EXPECT_EQ(result.sourceName, folder + "haupt.a51");
    EXPECT_FALSE(result.hasFindings) << result.report;
    EXPECT_TRUE(result.findings.empty());
    result = compile("teil.a51", "NOP\r\n#part of haupt.a51");
    EXPECT_EQ(result.status, CompileStatus::NothingToCompile);
    EXPECT_EQ(result.why, NothingToCompile::PartOfWithoutLineEnd);
    EXPECT_EQ(compile("Disassembling x.h51", "NOP\r\n").why, NothingToCompile::DisassemblyWindow);
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace korvex
