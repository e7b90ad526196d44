// The help as built: every topic that the workbench can ask for has its
// page, every register help has its four, and every example on any page
// assembles without a finding.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "assembler/assembler.h"
#include "assembler/cpu_driver.h"
#include "base/cp1252.h"
#include "base/files.h"
#include "base/host.h"
#include "base/text.h"
#include "testing/process.h"
#include "workbench/compile_command.h"
#include "workbench/controller_choice.h"
#include "workbench/help_pages.h"
#include "workbench/settings.h"

namespace korvex {
namespace {

const std::string kProgramFolder = KORVEX_PROGRAM_DIR;  // ends in "/"

bool pageExists(const HelpRequest& request) {
    return std::filesystem::exists(HelpPagePath(kProgramFolder, request));
}

TEST(HelpPages, EveryTopicHasItsPage) {
    for (const int number : MainHelpTopics()) {
        HelpRequest request;
        request.kind = HelpRequest::Kind::Topic;
        request.file = std::string(kMainHelpFile);
        request.topic = number;
        EXPECT_TRUE(pageExists(request)) << number;
    }
    EXPECT_TRUE(pageExists(HelpForWord("xyz")));   // the contents
    EXPECT_TRUE(pageExists(HelpForWord("exit")));  // the keyword
    for (const std::string& chip : AvailableControllers(std::string(KORVEX_DRIVER_FOLDER))) {
        const HelpRequest registers = HelpForCommand("MnHelpSFR", chip);
        EXPECT_TRUE(pageExists(registers)) << chip;
        for (const char* command : {"MnHelpSFRBit", "MnHelpInterrupt", "MnHelpReset"})
            EXPECT_TRUE(pageExists(HelpForCommand(command, chip))) << chip << " " << command;
    }
    // A family's pages hold every name of its driver, as the assembler reads them.
    const DriverReading driver = readCpuDriverFile(std::string(KORVEX_DRIVER_FOLDER) + "C517.cpu");
    const std::string family = HelpPagePath(kProgramFolder, HelpForCommand("MnHelpSFR", "C517"));
    const std::string sfrs = readWholeFile(family);
    const std::string bits =
        readWholeFile(HelpPagePath(kProgramFolder, HelpForCommand("MnHelpSFRBit", "C517")));
    for (const DriverName& sfr : driver.driver.sfrs)
        EXPECT_NE(sfrs.find("<code>" + sfr.name + "</code>"), std::string::npos) << sfr.name;
    for (const DriverName& bit : driver.driver.bits)
        EXPECT_NE(bits.find("<code>" + bit.name + "</code>"), std::string::npos) << bit.name;
}

// The examples as a user copies them: unescaped, in Windows-1252.
std::vector<std::string> examplesOf(const std::string& html) {
    std::vector<std::string> examples;
    const std::string open = "<pre class=\"beispiel\">";
    for (std::size_t at = html.find(open); at != std::string::npos; at = html.find(open, at)) {
        at += open.size();
        const std::size_t end = html.find("</pre>", at);
        std::string code = html.substr(at, end - at);
        for (const auto& [entity, character] : {std::pair<const char*, const char*>{"&lt;", "<"},
                                                {"&gt;", ">"},
                                                {"&quot;", "\""},
                                                {"&#x27;", "'"},
                                                {"&amp;", "&"}})
            code = replaceAll(code, entity, character);
        examples.push_back(replaceAll(fromUtf8(code), "\n", "\r\n") + "\r\n");
    }
    return examples;
}

TEST(HelpPages, EveryExampleAssemblesClean) {
    testing::ScratchFolder scratch;
    // The project of the pages on #include and #part of.
    scratch.write("haupt.a51", "#cpu 8032\r\n#include teil.a51\r\n        end\r\n");
    scratch.write("teil.a51", "#part of haupt.a51\r\n        nop\r\n");
    QuietHost host;
    AssemblerSettings run;
    run.programFolder = KORVEX_DRIVER_FOLDER;
    Assembler assembler(host, run);
    const Settings settings = defaultSettings(run.programFolder);
    int examples = 0;
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(kProgramFolder + "help")) {
        if (entry.path().extension() != ".html") continue;
        for (const std::string& code : examplesOf(readWholeFile(entry.path().string()))) {
            ++examples;
            const CompileResult result = compileWindow(
                assembler, host, settings,
                {scratch.path() + "beispiel.a51", code, OutputSwitches{}, scratch.path()});
            EXPECT_EQ(result.status, CompileStatus::Completed) << entry.path() << "\n" << code;
            EXPECT_FALSE(result.hasFindings) << entry.path() << "\n" << result.report;
        }
    }
    EXPECT_GT(examples, 60);
}

}  // namespace
}  // namespace korvex
