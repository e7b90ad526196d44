// korvex-asm as a user runs it: exit codes, files beside the source, and the
// hex file read back by an independent tool.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "base/program_folder.h"
#include "testing/process.h"

namespace {

namespace fs = std::filesystem;

using korvex::testing::ProcessResult;
using korvex::testing::readFileBytes;
using Result = ProcessResult;

Result runCommand(const std::string& command) {
    return korvex::testing::runProcess(command);
}

Result run(const std::string& arguments) {
    return runCommand(std::string(KORVEX_ASM) + " " + arguments + " 2>&1");
}

std::string readBytes(const std::string& path) {
    return readFileBytes(path);
}

class KorvexAsmTest : public ::testing::Test {
  protected:
    void SetUp() override {
        folder_ = korvex::makePrivateTemporaryFolder();
        write("testchip.cpu", "VECTOR\r\n0000 RESET\r\nSFR\r\nE0 ACC\r\nBIT\r\nD7 CY\r\n");
    }
    // Runs with the test folder as program folder, which holds a small driver.
    Result runHere(const std::string& arguments) {
        return run("--program-folder " + folder_ + " " + arguments);
    }
    void TearDown() override { fs::remove_all(folder_); }
    std::string write(const std::string& name, const std::string& text) {
        std::ofstream(folder_ + name, std::ios::binary) << text;
        return folder_ + name;
    }
    std::string folder_;
};

TEST_F(KorvexAsmTest, DefaultOutputsLandBesideTheSource) {
    const std::string source = write("prog.a51", "#cpu testchip\r\nNOP\r\nRET\r\n");
    const Result r = runHere(source);
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.output, " 3 Zeilen übersetzt. Code Ende bei 0002h.\n");
    EXPECT_TRUE(fs::exists(folder_ + "prog.l51"));
    EXPECT_TRUE(fs::exists(folder_ + "prog.h51"));
    EXPECT_FALSE(fs::exists(folder_ + "prog.b51"));
    EXPECT_FALSE(fs::exists(folder_ + "prog.s51"));
}

TEST_F(KorvexAsmTest, FindingsGiveExitOneAndStillWriteEverything) {
    const std::string source = write("bad.a51", "#cpu testchip\r\nNOP\r\n  SJMP NOWHERE\r\n");
    Result r = runHere("--bin --hex " + source);
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_EQ(r.output.substr(0, r.output.find("\n\n")),
              "Warnungen/Fehler:\n"
              "Zeile 1:3   SJMP NOWHERE ;>err6: unbekannter Befehl bzw. Sprungziel nicht gefunden")
        << r.output;
    EXPECT_EQ(readBytes(folder_ + "bad.b51"), std::string("\x00\x80\x00", 3));
}

TEST_F(KorvexAsmTest, RunTimeFailureWritesNothing) {
    Result r = runHere("--all " + write("empty.a51", ""));
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.output.find("leer"), std::string::npos) << r.output;
    r = runHere("--all " + write("member.a51", "#part of missing.a51\r\nNOP\r\n"));
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.output.find("Kann Projektdatei missing.a51 nicht finden."), std::string::npos)
        << r.output;
    // A source without a driver has no vector and so no report.
    r = runHere("--all " + write("nocpu.a51", "NOP\r\n"));
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.output.find("Typen unverträglich"), std::string::npos) << r.output;
    EXPECT_FALSE(fs::exists(folder_ + "nocpu.l51"));
    EXPECT_FALSE(fs::exists(folder_ + "empty.h51"));
}

TEST_F(KorvexAsmTest, MemberOfAProjectCompilesTheProject) {
    write("main.a51", "#cpu testchip\r\n#include part.a51\r\nRET\r\n");
    const std::string part = write("part.a51", "; #PART OF main.a51\r\nNOP\r\n");
    ASSERT_EQ(runHere("--bin " + part).exitCode, 0);
    EXPECT_EQ(readBytes(folder_ + "main.b51"), std::string("\x00\x22", 2));
    EXPECT_FALSE(fs::exists(folder_ + "part.b51"));
}

TEST_F(KorvexAsmTest, HexFileAgreesWithBinaryForAnIndependentReader) {
    if (!fs::exists("/usr/bin/srec_cat")) GTEST_SKIP() << "srec_cat (Debian srecord) fehlt";
    std::string text = "#cpu testchip\r\nORG 10h\r\n";
    for (int i = 0; i < 100; ++i) text += "MOV A,#" + std::to_string(i) + "\r\nLJMP 1234h\r\n";
    text += "ORG 0800h\r\nCALL 10h\r\nEND\r\n";
    const std::string source = write("image.a51", text);
    ASSERT_EQ(runHere("--bin --hex " + source).exitCode, 0);
    const std::string converted = folder_ + "converted.bin";
    ASSERT_EQ(std::system(
                  ("/usr/bin/srec_cat " + folder_ + "image.h51 -Intel -o " + converted + " -Binary")
                      .c_str()),
              0);
    EXPECT_EQ(readBytes(converted), readBytes(folder_ + "image.b51"));
}

TEST_F(KorvexAsmTest, BundledExamplesAssembleClean) {
    for (const char* name : {"beispiel.a51", "sprache.a51", "sprache_teil.a51"}) {
        fs::copy_file(std::string(KORVEX_SOURCE_DIR) + "/examples/" + name, folder_ + name,
                      fs::copy_options::overwrite_existing);
    }
    EXPECT_EQ(run("--all " + folder_ + "beispiel.a51").exitCode, 0);
    // The part names its project, so compiling it compiles the whole language example.
    Result r = run("--all " + folder_ + "sprache_teil.a51");
    EXPECT_EQ(r.exitCode, 0) << r.output;
    EXPECT_TRUE(fs::exists(folder_ + "sprache.h51"));
}

}  // namespace
