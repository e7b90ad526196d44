// The three programs answer a wrong call the same way: the usage on standard
// error and exit status 64; --help prints the whole help and exits 0.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "testing/process.h"

namespace {

struct Program {
    std::string path;
    std::string usage;                    // what --help starts its call line with
    std::vector<std::string> wrongCalls;  // each must give 64
};

TEST(CommandLineUsage, HelpExitsCleanAndWrongCallsGive64) {
    const std::vector<Program> programs = {
        {KORVEX_ASM, "Aufruf: korvex-asm", {"", "--bogus x.a51", "a.a51 b.a51"}},
        {KORVEX_DISASM,
         "Aufruf: korvex-disasm",
         {"", "--bogus x.bin", "a.bin b.bin", "x.bin -o", "x.bin --controller"}},
        {KORVEX_WIZARD,
         "Aufruf: korvex-wizard CHIP",
         {"", "51", "52 --bogus", "52 --set SCheck1", "52 --set Nichts=1", "52 --set SCheck1=7",
          "52 --answer vielleicht"}},
    };
    for (const Program& program : programs) {
        SCOPED_TRACE(program.path);
        const auto help = korvex::testing::runProcess(program.path + " --help 2>&1");
        EXPECT_EQ(help.exitCode, 0);
        EXPECT_NE(help.output.find(program.usage), std::string::npos);
        EXPECT_NE(help.output.find("Rückgabewerte"), std::string::npos);
        for (const std::string& call : program.wrongCalls) {
            const auto wrong = korvex::testing::runProcess(program.path + " " + call + " 2>&1");
            EXPECT_EQ(wrong.exitCode, 64) << call;
            EXPECT_NE(wrong.output.find("Aufruf:"), std::string::npos) << call;
        }
    }
}

}  // namespace
