// korvex-asm: assembles a source as the compile command of the workbench does.

#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "assembler/assembler.h"
#include "assembler/compile_source.h"
#include "assembler/source_file.h"
#include "base/cp1252.h"
#include "base/program_folder.h"
#include "base/text.h"
#include "cli/cli_host.h"
#include "cli/terminal_text.h"
#include "workbench/settings_file.h"

namespace {

using namespace korvex;

constexpr int kExitClean = 0;
constexpr int kExitFindings = 1;
constexpr int kExitFailure = 2;
constexpr int kExitUsage = 64;

constexpr const char* kHelp =
    "Aufruf: korvex-asm [Optionen] QUELLTEXT\n"
    "\n"
    "Übersetzt einen MCS-51-Quelltext der Korvex-Sprache, wie es der Befehl\n"
    "„Compilieren“ der Werkbank tut, und legt die gewählten Dateien neben dem\n"
    "Quelltext ab. Der Statusbericht erscheint auf der Standardausgabe.\n"
    "\n"
    "Optionen:\n"
    "  --program-folder ORDNER  Programmordner mit korvex.cfg und den *.cpu-Treibern\n"
    "  --bin                    Binärdatei schreiben (.b51)\n"
    "  --hex                    Intel-HEX-Datei schreiben (.h51)\n"
    "  --listing                Listing schreiben (.l51)\n"
    "  --symbols                Symboldatei schreiben (.s51)\n"
    "  --all                    alle vier Dateien schreiben\n"
    "  --help                   diese Hilfe zeigen\n"
    "\n"
    "Ohne Angabe werden HEX-Datei und Listing geschrieben. Die Dateiendungen\n"
    "stammen aus korvex.cfg im Programmordner; fehlt die Datei oder ist sie\n"
    "fehlerhaft, gelten die oben genannten.\n"
    "\n"
    "Rückgabewerte: 0 fehlerfrei, 1 Bericht mit „Warnungen/Fehler:“,\n"
    "2 Laufzeitfehler (keine Ausgabedateien), 64 falscher Aufruf.\n";

struct Options {
    std::string programFolder;
    OutputSwitches switches;
    bool anySwitch = false;
    std::string source;
};

int usageError(const std::string& message) {
    std::cerr << "korvex-asm: " << message << "\n"
              << "Aufruf: korvex-asm [--program-folder ORDNER] [--bin] [--hex] [--listing] "
                 "[--symbols] [--all] QUELLTEXT\n";
    return kExitUsage;
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    const std::vector<std::string> args(argv + 1, argv + argc);
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (arg == "--help" || arg == "-h") {
            std::cout << kHelp;
            return kExitClean;
        } else if (arg == "--program-folder") {
            if (i + 1 >= args.size()) return usageError("--program-folder braucht einen Ordner.");
            options.programFolder = args[++i];
        } else if (arg == "--bin") {
            options.switches.binary = options.anySwitch = true;
        } else if (arg == "--hex") {
            options.switches.hex = options.anySwitch = true;
        } else if (arg == "--listing") {
            options.switches.listing = options.anySwitch = true;
        } else if (arg == "--symbols") {
            options.switches.symbols = options.anySwitch = true;
        } else if (arg == "--all") {
            options.switches = {true, true, true, true};
            options.anySwitch = true;
        } else if (startsWith(arg, "-") && arg != "-") {
            return usageError("unbekannte Option " + arg);
        } else if (options.source.empty()) {
            options.source = arg;
        } else {
            return usageError("nur ein Quelltext ist möglich.");
        }
    }
    if (options.source.empty()) return usageError("kein Quelltext angegeben.");
    if (!options.anySwitch) options.switches.hex = options.switches.listing = true;

    std::error_code ec;
    const std::filesystem::path sourcePath = std::filesystem::absolute(options.source, ec);
    if (!fileExists(sourcePath.string())) {
        std::cerr << "korvex-asm: Datei " << options.source << " nicht gefunden.\n";
        return kExitFailure;
    }

    // The file is compiled as the workbench compiles a window showing it:
    // a member of a project compiles the project.
    CliHost host;
    const auto compiled =
        decideCompileSource(sourcePath.string(), readWholeFile(sourcePath.string()), host);
    if (!compiled) {
        if (readWholeFile(sourcePath.string()).empty()) {
            std::cerr << toTerminal(text8("korvex-asm: Der Quelltext ist leer, nichts zu übersetzen."))
                      << '\n';
        }
        return kExitFailure;
    }

    AssemblerSettings settings;
    settings.programFolder =
        resolveProgramFolder(processProgramFolderSources(options.programFolder));
    // The extensions chosen in the workbench. A command-line tool asks no
    // question: a missing or broken korvex.cfg leaves the default extensions.
    const Settings configured = readSettingsFile(settings.programFolder).settings;
    settings.listingExtension = configured.listingExtension;
    settings.binaryExtension = configured.binaryExtension;
    settings.hexExtension = configured.hexExtension;
    settings.symbolExtension = configured.symbolExtension;
    settings.temporaryFolder = makePrivateTemporaryFolder();
    settings.sourceFolder =
        withTrailingSlash(std::filesystem::path(compiled->name).parent_path().string());
    if (settings.temporaryFolder.empty()) {
        std::cerr << toTerminal(text8("korvex-asm: kein Ordner für temporäre Dateien.")) << '\n';
        return kExitFailure;
    }
    int exitCode = kExitClean;
    Assembler assembler(host, settings);
    try {
        writeWholeFile(settings.temporaryFolder + "TmpFile.tmp", compiled->text);
        std::string sourceName = compiled->name;
        const RunOutcome outcome = assembler.assembleSource(sourceName, options.switches);
        if (outcome != RunOutcome::Completed) {
            exitCode = kExitFailure;
        } else {
            const std::string& report = assembler.state().reportText;
            std::cout << toTerminal(replaceAll(report, "\r\n", "\n")) << std::flush;
            if (startsWith(report, "Warnungen/Fehler:")) exitCode = kExitFindings;
        }
    } catch (const RuntimeFailure& failure) {
        std::cerr << toTerminal(text8("Fehler Nummer") + decimalText(failure.number(), true) + ": " +
                                failure.description())
                  << '\n';
        exitCode = kExitFailure;
    }
    std::filesystem::remove_all(settings.temporaryFolder, ec);
    return exitCode;
}
