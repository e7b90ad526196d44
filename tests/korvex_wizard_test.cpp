// korvex-wizard as a user runs it: exit codes, scripted questions and
// inputs, the program on standard output and as a Windows-1252 file.

#include <gtest/gtest.h>

#include <string>

#include "testing/process.h"

namespace {

using Result = korvex::testing::ProcessResult;

Result run(const std::string& arguments, bool withErrors = true) {
    return korvex::testing::runProcess(std::string(KORVEX_WIZARD) + " " + arguments +
                                       (withErrors ? " 2>&1" : " 2>/dev/null"));
}

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(KorvexWizard, ADisabledControlCannotBeUsed) {
    // As in the dialog.
    const Result disabled = run("52 --set UCheck3=1");
    EXPECT_EQ(disabled.exitCode, 2);
    EXPECT_TRUE(contains(disabled.output, "UCheck3 ist gesperrt"));
}

TEST(KorvexWizard, PrintsTheProgram) {
    const Result r = run("52 --date 1.1.2027 --set 'ICheck1(1)=1' --set ICheck0=1", false);
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.output.rfind("; 1.1.2027\n\n#cpu = 80C32\t; @12 MHz\n", 0), 0u) << r.output;
    EXPECT_TRUE(contains(r.output, "Timer 0:\t; Timer 0 Interrupt\najmp Timer 0 Interrupt\n"));
    EXPECT_TRUE(contains(r.output, "setb ET0\t; Timer 0 Interrupt freigeben\n"));
    EXPECT_TRUE(contains(r.output, "Die Überlauffrequenz des Timer 0 beträgt 122,0703 Hz"));
    const Result point = run("52 --decimal-point", false);
    EXPECT_TRUE(contains(point.output, "122.0703 Hz, die Periodendauer 8.192 ms."));
}

TEST(KorvexWizard, QuestionsAndInputsAreScripted) {
    const std::string serial = "52 --set UCheck1=1 --set UOption1=1 --set T1Check0=1";
    const Result unanswered = run(serial);
    EXPECT_EQ(unanswered.exitCode, 2);
    EXPECT_TRUE(
        contains(unanswered.output, "Konflikt: Timer 1 wird bereits als Baudratengenerator"));
    const Result no = run(serial + " --answer nein");
    EXPECT_EQ(no.exitCode, 0);
    EXPECT_TRUE(contains(no.output, "-> nein"));
    EXPECT_TRUE(contains(no.output, "; Serieller Port"));
    const Result yes = run(serial + " --answer ja", false);
    EXPECT_EQ(yes.exitCode, 0);
    EXPECT_FALSE(contains(yes.output, "; Serieller Port"));

    const Result reload = run("52 --set T2Check0=1 --click T2Command1 --input 10000", false);
    EXPECT_EQ(reload.exitCode, 0);
    EXPECT_TRUE(contains(reload.output, "mov RCAP2L, # 9Ch\nmov RCAP2H, # FFh\n"));
    EXPECT_EQ(run("52 --click T2Command1").exitCode, 2);  // disabled until Timer 2 is used
}

TEST(KorvexWizard, WritesWindows1252WithCrLf) {
    const korvex::testing::ScratchFolder folder;
    const std::string file = folder.path() + "start.a51";
    const Result r = run("52 --date D --set 'SText5=Förderband' -o " + file);
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_TRUE(r.output.empty());
    const std::string bytes = korvex::testing::readFileBytes(file);
    EXPECT_EQ(bytes.rfind("; F\xF6rderband, D\r\n\r\n#cpu = 80C32\t; @12 MHz\r\n", 0), 0u);
    EXPECT_TRUE(contains(bytes, "Z\xE4hler.\r\n"));
}

}  // namespace
