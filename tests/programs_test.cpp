// The three programs as a user runs them: exit codes, files beside the
// source, text in the terminal's encoding and files in Windows-1252, the
// wizard's scripted answers, the usage for a wrong call, and the two chained.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "testing/process.h"

namespace {

namespace fs = std::filesystem;

using korvex::testing::ProcessResult;
using korvex::testing::readFileBytes;
using korvex::testing::runProcess;

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

class ProgramsTest : public ::testing::Test {
  protected:
    ProgramsTest() {
        write("chip.cpu", "VECTOR\r\n0000 RESET\r\nSFR\r\nE0 ACC\r\nBIT\r\nD7 CY\r\n");
    }
    std::string write(const std::string& name, const std::string& bytes) const {
        return folder_.write(name, bytes);
    }
    std::string read(const std::string& name) const { return folder_.read(name); }
    bool exists(const std::string& name) const { return fs::exists(dir() + name); }
    const std::string& dir() const { return folder_.path(); }

    // Each runs in the test folder, which is the program folder too.
    ProcessResult run(const std::string& program, const std::string& arguments,
                      bool errors = true) const {
        return runProcess("cd " + dir() + " && LC_ALL=C.UTF-8 " + program + " " + arguments +
                          (errors ? " 2>&1" : " 2>/dev/null"));
    }
    ProcessResult assemble(const std::string& arguments) const {
        return run(KORVEX_ASM, "--program-folder " + dir() + " " + arguments);
    }
    ProcessResult disassemble(const std::string& arguments, bool errors = true) const {
        return run(KORVEX_DISASM, "--program-folder " + dir() + " --controller chip " + arguments,
                   errors);
    }

    korvex::testing::ScratchFolder folder_;
};

TEST_F(ProgramsTest, AssemblerOutputsAndExitCodes) {
    ProcessResult r = assemble(write("prog.a51", "#cpu chip\r\nNOP\r\nRET\r\n"));
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.output, " 3 Zeilen übersetzt. Code Ende bei 0002h.\n");
    EXPECT_TRUE(exists("prog.l51") && exists("prog.h51"));
    EXPECT_FALSE(exists("prog.b51") || exists("prog.s51"));

    // Findings give exit 1 and still write everything.
    r = assemble("--bin --hex " + write("bad.a51", "#cpu chip\r\nNOP\r\n  SJMP NOWHERE\r\n"));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_EQ(r.output.substr(0, r.output.find("\n\n")),
              "Warnungen/Fehler:\n"
              "Zeile 1:3   SJMP NOWHERE ;>err6: unbekannter Befehl bzw. Sprungziel nicht gefunden")
        << r.output;
    EXPECT_EQ(read("bad.b51"), std::string("\x00\x80\x00", 3));

    // A member of a project compiles the project.
    write("main.a51", "#cpu chip\r\n#include part.a51\r\nRET\r\n");
    ASSERT_EQ(assemble("--bin " + write("part.a51", "; #PART OF main.a51\r\nNOP\r\n")).exitCode, 0);
    EXPECT_EQ(read("main.b51"), std::string("\x00\x22", 2));
    EXPECT_FALSE(exists("part.b51"));
}

TEST_F(ProgramsTest, HexFileAgreesWithBinaryForAnIndependentReader) {
    if (!fs::exists("/usr/bin/srec_cat")) GTEST_SKIP() << "srec_cat (Debian srecord) fehlt";
    std::string text = "#cpu chip\r\nORG 10h\r\n";
    for (int i = 0; i < 100; ++i) text += "MOV A,#" + std::to_string(i) + "\r\nLJMP 1234h\r\n";
    text += "ORG 0800h\r\nCALL 10h\r\nEND\r\n";
    ASSERT_EQ(assemble("--bin --hex " + write("image.a51", text)).exitCode, 0);
    ASSERT_EQ(runProcess("/usr/bin/srec_cat " + dir() + "image.h51 -Intel -o " + dir() +
                         "converted.bin -Binary")
                  .exitCode,
              0);
    EXPECT_EQ(read("converted.bin"), read("image.b51"));
}

TEST_F(ProgramsTest, BundledExamplesAssembleClean) {
    for (const char* name : {"beispiel.a51", "sprache.a51", "sprache_teil.a51"}) {
        fs::copy_file(std::string(KORVEX_SOURCE_DIR) + "/examples/" + name, dir() + name);
    }
    EXPECT_EQ(run(KORVEX_ASM, "--all beispiel.a51").exitCode, 0);
    // The part names its project, so compiling it compiles the whole language example.
    const ProcessResult r = run(KORVEX_ASM, "--all sprache_teil.a51");
    EXPECT_EQ(r.exitCode, 0) << r.output;
    EXPECT_TRUE(exists("sprache.h51"));
}

TEST_F(ProgramsTest, DisassemblerPrintsInTheTerminalsEncodingAndWritesWindows1252) {
    write("prog.bin", std::string("\xE5\xE0\x74\xE4\x80\xFE", 6));
    ProcessResult r = disassemble("prog.bin", false);
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.output, "; Korvex Disassembler, Datei: " + dir() +
                            "prog.bin\n#cpu = chip\n"
                            "0000\tE5\tE0\t\t\tmov a, ACC\n"
                            "0002\t74\tE4\t\t\tmov a, #E4h\t; 228d = '\xC3\xA4'\n"
                            "0004\t80\tFE\t\t\tsjmp 0004h\t; End\n");
    EXPECT_FALSE(exists("Disas2.tmp"));  // temporary files went elsewhere

    write("prog.h51", ":0400000074E480FE2A\r\n:00000001FF\r\n");
    r = disassemble("--labels --sort -o out.d51 prog.h51");
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.output, "");
    EXPECT_EQ(read("out.d51"),
              "; Korvex Disassembler, Datei: " + dir() +
                  "prog.h51\r\n#cpu = chip\r\n"
                  "\tmov a, #E4h\t; 228d = '\xE4'\r\nL0002h:\r\n\tsjmp L0002h\t; End\r\n");

    // Failures end with the message and status 2.
    write("leer.bin", "");
    const std::pair<std::string, std::string> failures[] = {
        {"--controller chip fehlt.bin", "Datei kann nicht geöffnet werden: " + dir() + "fehlt.bin"},
        {"--controller chip leer.bin", "leer.bin : Leere Datei"},
        {"--controller unbekannt prog.bin", "Fehler  53: Datei nicht gefunden."},
        // Without --controller the settings' controller is used: 8032, not here.
        {"prog.bin", "8032.cpu"},
        {"--controller chip -o " + dir() + "kein/ordner.d51 prog.bin", "kein/ordner.d51"}};
    for (const auto& [arguments, words] : failures) {
        r = run(KORVEX_DISASM, "--program-folder " + dir() + " " + arguments);
        EXPECT_EQ(r.exitCode, 2) << arguments;
        EXPECT_TRUE(contains(r.output, words)) << r.output;
    }
}

TEST_F(ProgramsTest, WizardPrintsOrWritesTheProgramAndScriptsItsQuestions) {
    ProcessResult r =
        run(KORVEX_WIZARD, "52 --date 1.1.2027 --set 'ICheck1(1)=1' --set ICheck0=1", false);
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.output.rfind("; 1.1.2027\n\n#cpu = 80C32\t; @12 MHz\n", 0), 0u) << r.output;
    EXPECT_TRUE(contains(r.output, "Timer 0:\t; Timer 0 Interrupt\najmp Timer 0 Interrupt\n"));
    EXPECT_TRUE(contains(r.output, "Die Überlauffrequenz des Timer 0 beträgt 122,0703 Hz"));
    r = run(KORVEX_WIZARD, "52 --decimal-point", false);
    EXPECT_TRUE(contains(r.output, "122.0703 Hz, die Periodendauer 8.192 ms."));

    r = run(KORVEX_WIZARD, "52 --date D --set 'SText5=Förderband' -o " + dir() + "start.a51");
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_TRUE(r.output.empty());
    const std::string bytes = read("start.a51");
    EXPECT_EQ(bytes.rfind("; F\xF6rderband, D\r\n\r\n#cpu = 80C32\t; @12 MHz\r\n", 0), 0u);
    EXPECT_TRUE(contains(bytes, "Z\xE4hler.\r\n"));

    // As in the dialog, a disabled control cannot be used.
    r = run(KORVEX_WIZARD, "52 --set UCheck3=1");
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(contains(r.output, "UCheck3 ist gesperrt"));
    EXPECT_EQ(run(KORVEX_WIZARD, "52 --click T2Command1").exitCode, 2);

    const std::string serial = "52 --set UCheck1=1 --set UOption1=1 --set T1Check0=1";
    r = run(KORVEX_WIZARD, serial);
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(contains(r.output, "Konflikt: Timer 1 wird bereits als Baudratengenerator"));
    r = run(KORVEX_WIZARD, serial + " --answer nein");
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_TRUE(contains(r.output, "-> nein") && contains(r.output, "; Serieller Port"));
    r = run(KORVEX_WIZARD, serial + " --answer ja", false);
    EXPECT_FALSE(contains(r.output, "; Serieller Port"));
    r = run(KORVEX_WIZARD, "52 --set T2Check0=1 --click T2Command1 --input 10000", false);
    EXPECT_TRUE(contains(r.output, "mov RCAP2L, # 9Ch\nmov RCAP2H, # FFh\n"));
}

// The matrix of settings is assembled in-process by the wizards' own tests;
// here the two programs are chained once per chip, as a user chains them,
// with the chip's own driver and (for the 80C552) the shipped I²C routine.
TEST_F(ProgramsTest, EveryChipsGeneratedProgramAssemblesWithoutFindings) {
    const std::pair<std::string, std::string> chips[] = {
        {"51", "--set UCheck1=1 --set UOption1=3 --set T0Combo1=1 --set 'ICheck1(1)=1'"},
        {"52",
         "--set UCheck1=1 --set UOption1=3 --set UCombo1=1 --set UCombo4=4800 --set T0Combo1=1 "
         "--set 'ICheck1(1)=1' --set ICheck0=1"},
        {"89S53", "--set SOption1=1 --set 'SCheck3(0)=1' --set SPICheck1=1 --set WCheck2=1"},
        {"8253",
         "--set SCkX2=1 --set BCheckTakt=1 --set 'BList(8)=1' --set WCkStart=1 "
         "--set SCheck1=1"},
        {"4052", "--set BCheckTakt=1 --set 'BList(8)=1' --set CaktivCheck=1 --set 'PortText(3)=1'"},
        {"320", "--set U1Check1=1 --set U1Option1=1 --set 'MCText2(2)=42' --set WCheck2=1"},
        {"515",
         "--set ADCheck1=1 --set WDCheck1=1 --click WDCommand1 --input 32.768 "
         "--set T2Check0=1 --set 'CCCombo1(1)=2'"},
        {"517", "--set UCheck1=1 --set UOption1=1 --set CTCheck1=1 --set 'CMCheck1(1)=1'"},
        {"552",
         "--set ICCheck1=1 --set 'ICheck1(5)=1' --set ICheck3=1 --set ICheck0=1 "
         "--set PWMCheck1=1"},
    };
    for (const auto& [chip, settings] : chips) {
        const std::string source = "start" + chip + ".a51";
        const ProcessResult wizard =
            run(KORVEX_WIZARD, chip + " --date 01.01.2026 " + settings + " -o " + source);
        ASSERT_EQ(wizard.exitCode, 0) << chip << ": " << wizard.output;
        const ProcessResult report = run(KORVEX_ASM, "--bin " + source);
        EXPECT_EQ(report.exitCode, 0) << chip << ": " << report.output;
        EXPECT_FALSE(contains(report.output, "Zeile ")) << report.output;
        EXPECT_TRUE(exists("start" + chip + ".b51"));
    }
    EXPECT_TRUE(contains(read("start552.a51"),
                         "; I\xB2"
                         "C Service-Routine"));
    const ProcessResult help = run(KORVEX_WIZARD, "--help");
    for (const char* line :
         {"  51                   Assistent 51\n", "  8253                 Assistent AT89S8253\n",
          "  515                  Asisstent C515\n", "  552                  Assistent 80C552\n"}) {
        EXPECT_TRUE(contains(help.output, line)) << help.output;
    }
}

// The three programs answer a wrong call the same way: the usage on standard
// error and exit status 64; --help prints the whole help and exits 0.
TEST_F(ProgramsTest, HelpExitsCleanAndWrongCallsGive64) {
    const struct {
        std::string path;
        std::string usage;
        std::vector<std::string> wrongCalls;
    } programs[] = {
        {KORVEX_ASM, "Aufruf: korvex-asm", {"", "--bogus x.a51", "a.a51 b.a51"}},
        {KORVEX_DISASM,
         "Aufruf: korvex-disasm",
         {"", "--bogus x.bin", "a.bin b.bin", "x.bin -o", "x.bin --controller"}},
        {KORVEX_WIZARD,
         "Aufruf: korvex-wizard CHIP",
         {"", "8051", "52 --bogus", "52 --set SCheck1", "52 --set Nichts=1", "52 --set SCheck1=7",
          "52 --answer vielleicht"}},
    };
    for (const auto& program : programs) {
        const ProcessResult help = run(program.path, "--help");
        EXPECT_EQ(help.exitCode, 0);
        EXPECT_TRUE(contains(help.output, program.usage) && contains(help.output, "Rückgabewerte"));
        for (const std::string& call : program.wrongCalls) {
            const ProcessResult wrong = run(program.path, call);
            EXPECT_EQ(wrong.exitCode, 64) << program.path << " " << call;
            EXPECT_TRUE(contains(wrong.output, "Aufruf:")) << call;
        }
    }
}

}  // namespace
