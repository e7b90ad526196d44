// korvex-disasm as a user runs it: options, exit codes, the text on
// standard output in the terminal's encoding, and the file of -o.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "base/program_folder.h"
#include "testing/process.h"

namespace {

namespace fs = std::filesystem;

using Result = korvex::testing::ProcessResult;

class KorvexDisasm : public ::testing::Test {
  protected:
    void SetUp() override {
        folder_ = korvex::makePrivateTemporaryFolder();
        write("chip.cpu", "VECTOR\r\n0000 RESET\r\nSFR\r\nE0 ACC\r\n");
    }
    void TearDown() override { fs::remove_all(folder_); }

    // Runs in the test folder, which is the program folder too.
    Result run(const std::string& arguments, bool withStderr = true) {
        return korvex::testing::runProcess("cd " + folder_ +
                                           " && LC_ALL=C.UTF-8 " KORVEX_DISASM " " + arguments +
                                           (withStderr ? " 2>&1" : " 2>/dev/null"));
    }
    void write(const std::string& name, const std::string& bytes) {
        std::ofstream(folder_ + name, std::ios::binary) << bytes;
    }
    std::string read(const std::string& name) {
        return korvex::testing::readFileBytes(folder_ + name);
    }
    std::string here() const { return "--program-folder " + folder_ + " --controller chip "; }

    std::string folder_;
};

TEST_F(KorvexDisasm, PrintsTheWindowTextInTheTerminalsEncoding) {
    write("prog.bin", std::string("\xE5\xE0\x74\xE4\x80\xFE", 6));
    const Result r = run(here() + "prog.bin", false);
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.output, "; Korvex Disassembler, Datei: " + folder_ +
                            "prog.bin\n#cpu = chip\n"
                            "0000\tE5\tE0\t\t\tmov a, ACC\n"
                            "0002\t74\tE4\t\t\tmov a, #E4h\t; 228d = '\xC3\xA4'\n"
                            "0004\t80\tFE\t\t\tsjmp 0004h\t; End\n");
    EXPECT_FALSE(fs::exists(folder_ + "Disas2.tmp"));  // temporary files went elsewhere
}

TEST_F(KorvexDisasm, WritesWindows1252WithCrLf) {
    write("prog.h51", ":0400000074E480FE2A\r\n:00000001FF\r\n");
    const Result r = run(here() + "--labels --sort -o out.d51 prog.h51");
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.output, "");
    EXPECT_EQ(read("out.d51"),
              "; Korvex Disassembler, Datei: " + folder_ +
                  "prog.h51\r\n#cpu = chip\r\n"
                  "\tmov a, #E4h\t; 228d = '\xE4'\r\nL0002h:\r\n\tsjmp L0002h\t; End\r\n");
}

TEST_F(KorvexDisasm, FailuresEndWithTheMessageAndStatus2) {
    Result r = run(here() + "fehlt.bin");
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.output.find("Datei kann nicht geöffnet werden: " + folder_ + "fehlt.bin"),
              std::string::npos);
    write("leer.bin", "");
    r = run(here() + "leer.bin");
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.output.find("leer.bin : Leere Datei"), std::string::npos);
    write("prog.bin", "\x22");
    r = run("--program-folder " + folder_ + " --controller unbekannt prog.bin");
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.output.find("Fehler  53: Datei nicht gefunden."), std::string::npos);
    // Without --controller the settings' controller is used: 8032, not here.
    r = run("--program-folder " + folder_ + " prog.bin");
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.output.find("8032.cpu"), std::string::npos);
    r = run(here() + "-o " + folder_ + "kein/ordner.d51 prog.bin");
    EXPECT_EQ(r.exitCode, 2);
}

}  // namespace
