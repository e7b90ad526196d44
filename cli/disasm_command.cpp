#include "cli/disasm_command.h"

#include <filesystem>

#include "assembler/assembler.h"
#include "base/cp1252.h"
#include "base/files.h"
#include "base/program_folder.h"
#include "base/text.h"
#include "cli/cli_host.h"
#include "cli/run_guard.h"
#include "cli/temporary_folder.h"
#include "cli/terminal_text.h"
#include "disassembler/disassembler.h"
#include "workbench/settings_file.h"

namespace korvex {
namespace {

constexpr const char* kTool = "korvex-disasm";

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
    bool help = false;
};

int usageError(std::ostream& err, const std::string& message) {
    err << kTool << ": " << message << "\n" << kUsage;
    return kExitUsage;
}

// Returns kExitClean when the arguments are usable.
int parseArguments(const std::vector<std::string>& args, Options& options, std::ostream& err) {
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        const bool hasValue = i + 1 < args.size();
        if (arg == "--help" || arg == "-h") {
            options.help = true;
        } else if (arg == "--program-folder") {
            if (!hasValue) return usageError(err, "--program-folder braucht einen Ordner.");
            options.programFolder = args[++i];
        } else if (arg == "--controller") {
            if (!hasValue) return usageError(err, "--controller braucht einen Namen.");
            options.controller = args[++i];
        } else if (arg == "-o") {
            if (!hasValue) return usageError(err, "-o braucht einen Dateinamen.");
            options.outputFile = args[++i];
        } else if (arg == "--labels") {
            options.dialog.withLabels = true;
        } else if (arg == "--sort") {
            options.dialog.sortAddresses = true;
        } else if (startsWith(arg, "-") && arg != "-") {
            return usageError(err, "unbekannte Option " + arg);
        } else if (options.input.empty()) {
            options.input = arg;
        } else {
            return usageError(err, "nur eine Eingabedatei ist möglich.");
        }
    }
    if (options.help || !options.input.empty()) return kExitClean;
    return usageError(err, "keine Eingabedatei angegeben.");
}

int disassemble(const Options& options, std::ostream& out, std::ostream& err) {
    DisassemblerSettings settings;
    settings.programFolder =
        resolveProgramFolder(processProgramFolderSources(options.programFolder));
    // The controller and the source extension chosen in the workbench; a
    // missing or broken korvex.cfg leaves the defaults, without a question.
    const Settings configured = readSettingsFile(settings.programFolder).settings;
    settings.controllerName =
        options.controller.empty() ? configured.ControllerName : fromUtf8(options.controller);
    settings.sourceExtension = configured.sourceExtension;
    // Runs side by side must not share Disas.tmp: each takes a folder of its own.
    const TemporaryFolder temporary;
    if (temporary.path().empty()) {
        err << kTool << ": " << toTerminal(text8("kein Ordner für temporäre Dateien.")) << '\n';
        return kExitFailure;
    }
    settings.temporaryFolder = temporary.path();

    // The chosen file as a file dialog gives it: with its full path.
    std::error_code ec;
    const std::filesystem::path input = std::filesystem::absolute(options.input, ec);
    const std::string inputPath = ec ? options.input : input.string();

    CliHost host(out, err);
    Disassembler disassembler(host, settings);
    const DisassemblyResult result = disassembler.disassembleFile(inputPath, options.dialog);
    if (result.outcome != DisassemblyOutcome::Completed || !result.window) return kExitFailure;

    if (options.outputFile.empty()) {
        out << toTerminal(replaceAll(result.window->text, "\r\n", "\n")) << std::flush;
    } else {
        writeWholeFile(options.outputFile, result.window->text);
    }
    return kExitClean;
}

}  // namespace

int runKorvexDisasm(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    return runTool<Options>(
        kTool, kHelp, out, err,
        [&](Options& options) { return parseArguments(args, options, err); },
        [&](const Options& options) { return disassemble(options, out, err); });
}

}  // namespace korvex
