// korvex-disasm: disassembles a hex or binary file as the workbench's
// disassembler command does, and prints the text of the new window.

#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "assembler/assembler.h"
#include "assembler/source_file.h"
#include "base/cp1252.h"
#include "base/program_folder.h"
#include "base/text.h"
#include "cli/cli_host.h"
#include "cli/terminal_text.h"
#include "disassembler/disassembler.h"
#include "workbench/settings_file.h"

namespace {

using namespace korvex;

constexpr int kExitClean = 0;
constexpr int kExitFailure = 2;
constexpr int kExitUsage = 64;

constexpr const char* kUsage =
    "Aufruf: korvex-disasm [--program-folder ORDNER] [--controller NAME] [--labels] [--sort] "
    "[-o DATEI] EINGABE\n";

constexpr const char* kHelp =
    "Aufruf: korvex-disasm [Optionen] EINGABE\n"
    "\n"
    "Disassembliert eine Hex- oder Binärdatei, wie es der Befehl „Disassembler“ der\n"
    "Werkbank tut, und gibt den Text des neuen Fensters auf der Standardausgabe aus.\n"
    "Ob die Eingabe eine Hexdatei ist, entscheidet ihre erste Zeile.\n"
    "\n"
    "Optionen:\n"
    "  --program-folder ORDNER  Programmordner mit den *.cpu-Treibern\n"
    "  --controller NAME        Controllertyp, dessen Treiber die Namen liefert\n"
    "                           (Vorgabe: der Controllertyp aus korvex.cfg, sonst 8032)\n"
    "  --labels                 ohne Adressen und OpCodes, mit Labels\n"
    "                           (sonst: mit Adressen und OpCodes, ohne Labels)\n"
    "  --sort                   Adressen im Hex-File sortieren\n"
    "  -o DATEI                 den Text in DATEI schreiben (Windows-1252, CR LF)\n"
    "  --help                   diese Hilfe zeigen\n"
    "\n"
    "Rückgabewerte: 0 fertig, 2 Fehler (Meldung auf der Standardfehlerausgabe),\n"
    "64 falscher Aufruf.\n";

struct Options {
    std::string programFolder;
    std::string controller;  // empty: the configured one
    DisassemblerOptions dialog;
    std::string outputFile;
    std::string input;
};

int usageError(const std::string& message) {
    std::cerr << "korvex-disasm: " << message << "\n" << kUsage;
    return kExitUsage;
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    const std::vector<std::string> args(argv + 1, argv + argc);
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        const bool hasValue = i + 1 < args.size();
        if (arg == "--help" || arg == "-h") {
            std::cout << kHelp;
            return kExitClean;
        } else if (arg == "--program-folder") {
            if (!hasValue) return usageError("--program-folder braucht einen Ordner.");
            options.programFolder = args[++i];
        } else if (arg == "--controller") {
            if (!hasValue) return usageError("--controller braucht einen Namen.");
            options.controller = args[++i];
        } else if (arg == "-o") {
            if (!hasValue) return usageError("-o braucht einen Dateinamen.");
            options.outputFile = args[++i];
        } else if (arg == "--labels") {
            options.dialog.withLabels = true;
        } else if (arg == "--sort") {
            options.dialog.sortAddresses = true;
        } else if (startsWith(arg, "-") && arg != "-") {
            return usageError("unbekannte Option " + arg);
        } else if (options.input.empty()) {
            options.input = arg;
        } else {
            return usageError("nur eine Eingabedatei ist möglich.");
        }
    }
    if (options.input.empty()) return usageError("keine Eingabedatei angegeben.");

    AssemblerSettings assemblerSettings;
    assemblerSettings.programFolder =
        resolveProgramFolder(processProgramFolderSources(options.programFolder));
    // The controller and the source extension chosen in the workbench; a
    // missing or broken korvex.cfg leaves the defaults, without a question.
    const Settings configured = readSettingsFile(assemblerSettings.programFolder).settings;
    DisassemblerSettings settings;
    settings.controllerName =
        options.controller.empty() ? configured.ControllerName : fromUtf8(options.controller);
    settings.sourceExtension = configured.sourceExtension;
    // Runs side by side must not share Disas.tmp: each takes a folder of its own.
    settings.temporaryFolder = makePrivateTemporaryFolder();
    if (settings.temporaryFolder.empty()) {
        std::cerr << toTerminal(text8("korvex-disasm: kein Ordner für temporäre Dateien.")) << '\n';
        return kExitFailure;
    }
    assemblerSettings.temporaryFolder = settings.temporaryFolder;

    // The chosen file as a file dialog gives it: with its full path.
    std::error_code ec;
    const std::filesystem::path input = std::filesystem::absolute(options.input, ec);
    const std::string inputPath = ec ? options.input : input.string();

    CliHost host;
    Assembler assembler(host, assemblerSettings);
    Disassembler disassembler(host, assembler, settings);
    const DisassemblyResult result = disassembler.disassembleFile(inputPath, options.dialog);

    int exitCode = kExitFailure;
    if (result.outcome == DisassemblyOutcome::Completed && result.window) {
        exitCode = kExitClean;
        if (options.outputFile.empty()) {
            std::cout << toTerminal(replaceAll(result.window->text, "\r\n", "\n")) << std::flush;
        } else {
            try {
                writeWholeFile(options.outputFile, result.window->text);
            } catch (const RuntimeFailure& failure) {
                std::cerr << toTerminal(text8("korvex-disasm: ") + fromUtf8(options.outputFile) +
                                        ": " + failure.description())
                          << '\n';
                exitCode = kExitFailure;
            }
        }
    }
    std::filesystem::remove_all(settings.temporaryFolder, ec);
    return exitCode;
}
