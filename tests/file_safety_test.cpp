// The programs on bad disks, forbidden files, hostile settings, runs side by
// side and signals: a German word and exit 2, never an abort, and a user's
// files either old or new, whole.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

#include "testing/process.h"

namespace {

namespace fs = std::filesystem;

using Result = korvex::testing::ProcessResult;
using korvex::testing::readFileBytes;

Result shell(const std::string& script) {
    return korvex::testing::runBash(script);
}

bool contains(const Result& r, const std::string& text) {
    return r.output.find(text) != std::string::npos;
}

// Root reads every file; a forbidden file means something only to others.
std::string asUser() {
    return ::geteuid() == 0 ? "setpriv --reuid=65534 --regid=65534 --clear-groups " : "";
}

// Writes past one KiB fail as on a full disk.
constexpr const char* kDiskFull = "ulimit -f 1; trap \"\" XFSZ; ";

class FileSafetyTest : public ::testing::Test {
  protected:
    void SetUp() override {
        // Others may enter and read, not write: as a user's folder of sources looks to others.
        fs::permissions(folder_, fs::perms::owner_all | fs::perms::group_read |
                                     fs::perms::group_exec | fs::perms::others_read |
                                     fs::perms::others_exec);
        write("testchip.cpu", "VECTOR\r\n0000 RESET\r\nSFR\r\nE0 ACC\r\nBIT\r\nD7 CY\r\n");
    }
    std::string write(const std::string& name, const std::string& text) const {
        return scratch_.write(name, text);
    }
    std::string asm_(const std::string& arguments) const {
        return std::string(KORVEX_ASM) + " --program-folder " + folder_ + " " + arguments;
    }
    korvex::testing::ScratchFolder scratch_;
    const std::string& folder_ = scratch_.path();
};

TEST_F(FileSafetyTest, FilesThatCantBeReadFailInGermanNamingThem) {
    const std::string secret = write("geheim.a51", "#cpu testchip\r\nNOP\r\n");
    fs::permissions(secret, fs::perms::owner_write);
    Result r = shell(asUser() + asm_(secret));
    EXPECT_EQ(r.exitCode, 2) << r.output;
    EXPECT_TRUE(contains(r, "Zugriff verweigert") && contains(r, secret)) << r.output;

    r = shell(asm_(folder_));
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(contains(r, "ist ein Ordner")) << r.output;

    // An include that exists but may not be read is no missing file.
    write("haupt.a51", "#cpu testchip\r\n#include geheim.a51\r\nRET\r\n");
    r = shell(asUser() + asm_("--bin " + folder_ + "haupt.a51"));
    EXPECT_TRUE(contains(r, "Zugriff verweigert") && contains(r, secret)) << r.output;
    EXPECT_FALSE(contains(r, "nicht gefunden")) << r.output;

    // A read-only include with CR CR line ends is read repaired all the same.
    write("alt.a51", "NOP\r\r\nNOP\r\r\n");
    write("projekt.a51",
          "#cpu " + folder_ + "testchip\r\n#include " + folder_ + "alt.a51\r\nRET\r\n");
    // Its outputs go where the user may write.
    r = shell("cp " + folder_ +
              "projekt.a51 /tmp/korvex-ro-$$.a51; chmod 666 /tmp/korvex-ro-$$.a51; " + asUser() +
              asm_("/tmp/korvex-ro-$$.a51") + "; echo rc=$?; rm -f /tmp/korvex-ro-$$.*");
    EXPECT_TRUE(contains(r, "rc=0") && contains(r, "alt.a51 kann nicht repariert werden"))
        << r.output;
}

TEST_F(FileSafetyTest, AFullDiskIsAFailureAndKeepsTheOldOutputs) {
    std::string text = "#cpu testchip\r\n";
    for (int i = 0; i < 60; ++i) text += "NOP\r\n";
    const std::string source = write("prog.a51", text);
    for (const char* extension : {"l51", "h51", "b51", "s51"}) {
        write(std::string("prog.") + extension, "alt");
    }
    Result r = shell(kDiskFull + asm_("--all " + source));
    EXPECT_EQ(r.exitCode, 2) << r.output;
    EXPECT_TRUE(contains(r, folder_ + "prog.l51")) << r.output;
    for (const char* extension : {"l51", "h51", "b51", "s51"}) {
        EXPECT_EQ(readFileBytes(folder_ + "prog." + extension), "alt") << extension;
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_), {}), 6);  // no temporaries

    EXPECT_EQ(shell(asm_(source) + " > /dev/full").exitCode, 2);
    const std::string binary = write("code.bin", std::string(2000, '\0'));
    const std::string disasm =
        std::string(KORVEX_DISASM) + " --program-folder " + folder_ + " --controller testchip ";
    EXPECT_EQ(shell(disasm + binary + " > /dev/full").exitCode, 2);
    r = shell(disasm + "-o /dev/full " + binary);
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(contains(r, "/dev/full")) << r.output;
    EXPECT_EQ(shell(std::string(KORVEX_WIZARD) + " 52 > /dev/full").exitCode, 2);
    r = shell(std::string(KORVEX_WIZARD) + " 52 -o /dev/full");
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(contains(r, "/dev/full")) << r.output;
}

TEST_F(FileSafetyTest, NoSettingLetsAnOutputOverwriteTheSource) {
    const std::string text = "#cpu testchip\r\nNOP\r\n";
    const std::string source = write("prog.a51", text);
    write("korvex.cfg",
          "\"a51\",\"a51\",\"b51\",\"h51\",\"d51\",\"s51\",9460,4000,9460,4000,\"8032\",0,0,0,"
          "\"MS Sans Serif\",10,#FALSE#,#FALSE#\r\n"
          "\"/p/\",\"/p/\",\"/p/\",\"/p/\",\"/p/\",\"/p/\",600,600,5910,4890\r\n"
          "-2147483636\r\n-2147483643\r\n12648447\r\n15792639\r\n16775664\r\n8437935\r\n"
          "13697023\r\n11979443\r\n16056316\r\n12766650\r\n32768\r\n"
          "25,0,#FALSE#,#FALSE#,#FALSE#\r\n");
    Result r = shell(asm_(source));
    EXPECT_EQ(r.exitCode, 0) << r.output;
    EXPECT_TRUE(contains(r, "korvex.cfg ist fehlerhaft") && contains(r, "Programmcode und Listing"))
        << r.output;
    EXPECT_EQ(readFileBytes(source), text);
    EXPECT_TRUE(fs::exists(folder_ + "prog.l51"));

    // Commas alone leave no extension at all: the defaults hold.
    write("korvex.cfg", std::string(40, ','));
    EXPECT_EQ(shell(asm_("--hex " + source)).exitCode, 0);
    EXPECT_FALSE(fs::exists(folder_ + "prog."));

    // A source that carries an output's extension is never overwritten by it.
    fs::remove(folder_ + "korvex.cfg");
    const std::string hexNamed = write("quelle.h51", text);
    r = shell(asm_("--hex " + hexNamed));
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(contains(r, "nicht überschrieben")) << r.output;
    EXPECT_EQ(readFileBytes(hexNamed), text);
}

TEST_F(FileSafetyTest, RunsSideBySideReadTheRepairedIncludeWhole) {
    // Many runs start at once on a project whose include needs the CR CR
    // repair; each must read it whole, before or after the repair.
    std::string include;
    std::string expected;
    for (int i = 0; i < 3000; ++i) {
        include += "MOV A,#" + std::to_string(i % 256) + "\r\r\n";
        expected += {'\x74', static_cast<char>(i % 256)};
    }
    expected += '\x22';
    constexpr int kRuns = 40;
    std::string script;
    for (int i = 0; i < kRuns; ++i) {
        const std::string name = "haupt" + std::to_string(i) + ".a51";
        write(name, "#cpu testchip\r\n#include teil.a51\r\nRET\r\n");
        script += asm_("--bin " + folder_ + name) + " > /dev/null & ";
    }
    for (int round = 0; round < 4; ++round) {
        write("teil.a51", include);
        shell(script + "wait");
        for (int i = 0; i < kRuns; ++i) {
            ASSERT_EQ(readFileBytes(folder_ + "haupt" + std::to_string(i) + ".b51"), expected)
                << "Runde " << round << ", Lauf " << i;
        }
    }
    EXPECT_EQ(readFileBytes(folder_ + "teil.a51").find("\r\r"), std::string::npos);
}

TEST_F(FileSafetyTest, RunsThatDoNothingOrFailSayWhyAndWriteNothing) {
    const std::pair<std::string, const char*> runs[] = {
        {"NOP\r\n#part of haupt.a51", "fehlt das Zeilenende"},
        {"#part of missing.a51\r\nNOP\r\n", "Kann Projektdatei missing.a51 nicht finden."},
        {"", "leer"},
        // No driver: no vector and so no report.
        {"NOP\r\n", "keinen Treiber mit #cpu"},
        {"\xEF\xBB\xBF#cpu testchip\r\nNOP\r\n", "UTF-8-Kennung"},
        {std::string("\xFF\xFE#\0c\0p\0u\0", 10), "UTF-16"}};
    for (const auto& [source, words] : runs) {
        const Result r = shell(asm_("--all " + write("lauf.a51", source)));
        EXPECT_EQ(r.exitCode, 2) << r.output;
        EXPECT_TRUE(contains(r, words)) << r.output;
        EXPECT_FALSE(fs::exists(folder_ + "lauf.l51") || fs::exists(folder_ + "lauf.h51"));
    }
    // A statement that changes its length is not passed in silence.
    const Result r = shell(asm_(write("vor.a51", "#cpu testchip\r\nmov 30h,#K\r\n#const K=5\r\n")));
    EXPECT_EQ(r.exitCode, 1) << r.output;
    EXPECT_TRUE(contains(r, "vor.a51 Zeile 2")) << r.output;
}

TEST_F(FileSafetyTest, TemporaryFoldersGoWhenARunIsStopped) {
    const std::string temporary = folder_ + "tmp/";
    fs::create_directory(temporary);
    const std::string binary = write("gross.bin", std::string(65536, '\x74'));
    const std::string disasm = "TMPDIR=" + temporary + " " + KORVEX_DISASM + " --program-folder " +
                               folder_ + " --controller testchip " + binary;
    // A reader that stops early breaks the pipe.
    shell(disasm + " | head -c 10 > /dev/null");
    EXPECT_TRUE(fs::is_empty(temporary));
    // A run that waits on a full pipe is ended from outside.
    for (const char* signal : {"TERM", "HUP", "INT"}) {
        const Result r = shell("set -m; mkfifo " + folder_ + "rohr; (" + disasm + " > " + folder_ +
                               "rohr) & exec 3< " + folder_ + "rohr; sleep 0.3; kill -" + signal +
                               " %1; wait; rm " + folder_ + "rohr");
        EXPECT_TRUE(fs::is_empty(temporary)) << signal << r.output;
    }
}

}  // namespace
