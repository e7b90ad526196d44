#include "help_check.h"

#include <filesystem>

#include "assembler/assembler.h"
#include "base/cp1252.h"
#include "base/failure.h"
#include "base/files.h"
#include "base/host.h"
#include "base/program_folder.h"
#include "base/text.h"
#include "workbench/compile_command.h"
#include "workbench/controller_choice.h"
#include "workbench/help_pages.h"
#include "workbench/settings.h"

namespace korvex::help {
namespace {

// A scratch folder that goes with its scope.
class Scratch {
  public:
    Scratch() : path_(makePrivateTemporaryFolder()) {}
    ~Scratch() {
        std::error_code ignored;
        if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;
    const std::string& path() const { return path_; }

  private:
    std::string path_;
};

void checkPages(const std::string& programFolder, const std::string& driverFolder,
                std::vector<std::string>& problems) {
    const auto need = [&](const HelpRequest& request, const std::string& what) {
        const std::string path = HelpPagePath(programFolder, request);
        if (!std::filesystem::exists(path))
            problems.push_back("Seite fehlt: " + path + " (" + what + ")");
    };
    for (const int number : MainHelpTopics()) {
        HelpRequest request;
        request.kind = HelpRequest::Kind::Topic;
        request.file = std::string(kMainHelpFile);
        request.topic = number;
        need(request, "Thema " + std::to_string(number));
    }
    need(HelpForWord("xyz"), "Inhalt");
    need(HelpForWord("exit"), "Stichwort Exit");
    for (const std::string& chip : AvailableControllers(driverFolder))
        for (const char* command : {"MnHelpSFR", "MnHelpSFRBit", "MnHelpInterrupt", "MnHelpReset"})
            need(HelpForCommand(command, chip), chip + " " + command);
}

void checkExamples(const std::string& programFolder, const std::string& driverFolder,
                   std::vector<std::string>& problems) {
    const Scratch scratch;
    if (scratch.path().empty()) {
        problems.push_back("kein Ordner für temporäre Dateien");
        return;
    }
    // The project of the pages on #include and #part of.
    writeWholeFile(scratch.path() + "haupt.a51",
                   "#cpu 8032\r\n#include teil.a51\r\n        end\r\n");
    writeWholeFile(scratch.path() + "teil.a51", "#part of haupt.a51\r\n        nop\r\n");
    QuietHost host;
    AssemblerSettings run;
    run.programFolder = driverFolder;
    Assembler assembler(host, run);
    const Settings settings = defaultSettings(driverFolder);
    std::error_code error;
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(programFolder + "help", error)) {
        if (entry.path().extension() != ".html") continue;
        const std::string page = entry.path().string();
        for (const std::string& code : examplesOf(readWholeFile(page))) {
            const CompileResult result = compileWindow(
                assembler, host, settings,
                {scratch.path() + "beispiel.a51", code, OutputSwitches{}, scratch.path()});
            if (result.status != CompileStatus::Completed || result.hasFindings)
                problems.push_back("Beispiel übersetzt nicht sauber: " + page + "\n" +
                                   toUtf8(result.report));
        }
    }
}

}  // namespace

std::vector<std::string> examplesOf(const std::string& html) {
    std::vector<std::string> examples;
    const std::string open = "<pre class=\"beispiel\">";
    for (std::size_t at = html.find(open); at != std::string::npos; at = html.find(open, at)) {
        at += open.size();
        const std::size_t end = html.find("</pre>", at);
        if (end == std::string::npos) break;
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

std::vector<std::string> checkHelp(const std::string& programFolder,
                                   const std::string& driverFolder) {
    std::vector<std::string> problems;
    try {
        checkPages(programFolder, driverFolder, problems);
        checkExamples(programFolder, driverFolder, problems);
    } catch (const RuntimeFailure& failure) {
        problems.push_back("Fehler beim Prüfen: " + toUtf8(failure.description()));
    }
    return problems;
}

}  // namespace korvex::help
