#include "cli/asm_command.h"

#include <filesystem>

#include "base/cp1252.h"
#include "base/files.h"
#include "base/program_folder.h"
#include "base/text.h"
#include "cli/cli_host.h"
#include "cli/run_guard.h"
#include "cli/source_hints.h"
#include "cli/temporary_folder.h"
#include "cli/terminal_text.h"
#include "workbench/compile_command.h"
#include "workbench/settings_file.h"

namespace korvex {
namespace {

constexpr const char* kTool = "korvex-asm";

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
    "Rückgabewerte: 0 fehlerfrei, 1 Bericht mit „Warnungen/Fehler:“ oder\n"
    "Warnungen zu Vorwärtsbezügen, 2 Laufzeitfehler (keine Ausgabedateien),\n"
    "64 falscher Aufruf.\n";

struct Options {
    std::string programFolder;
    OutputSwitches switches;
    bool anySwitch = false;
    std::string source;
    bool help = false;
};

int usageError(std::ostream& err, const std::string& message) {
    err << kTool << ": " << message << "\n"
        << "Aufruf: korvex-asm [--program-folder ORDNER] [--bin] [--hex] [--listing] "
           "[--symbols] [--all] QUELLTEXT\n";
    return kExitUsage;
}

// Returns kExitClean when the arguments are usable.
int parseArguments(const std::vector<std::string>& args, Options& options, std::ostream& err) {
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (arg == "--help" || arg == "-h") {
            options.help = true;
        } else if (arg == "--program-folder") {
            if (i + 1 >= args.size())
                return usageError(err, "--program-folder braucht einen Ordner.");
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
            return usageError(err, "unbekannte Option " + arg);
        } else if (options.source.empty()) {
            options.source = arg;
        } else {
            return usageError(err, "nur ein Quelltext ist möglich.");
        }
    }
    if (options.help) return kExitClean;
    if (options.source.empty()) return usageError(err, "kein Quelltext angegeben.");
    if (!options.anySwitch) options.switches.hex = options.switches.listing = true;
    return kExitClean;
}

void say(std::ostream& stream, const std::string& utf8) {
    stream << kTool << ": " << toTerminal(text8(utf8)) << '\n';
}

// The extensions chosen in the workbench. A command-line tool asks no
// question: a missing korvex.cfg silently leaves the defaults, a damaged one
// leaves them with a note.
Settings configuredSettings(const std::string& programFolder, std::ostream& err) {
    const SettingsReadResult read = readSettingsFile(programFolder);
    if (read.failure && read.failure->number() != static_cast<int>(FailureNumber::FileNotFound)) {
        err << kTool << ": "
            << toTerminal(programFolder + kSettingsFileName +
                          text8(" ist fehlerhaft; es gelten die vorgegebenen Dateiendungen."))
            << '\n';
        if (!read.problem.empty()) err << "  " << toTerminal(read.problem) << '\n';
    }
    return read.settings;
}

void explainNothingCompiled(NothingToCompile why, std::ostream& err) {
    switch (why) {
        case NothingToCompile::EmptyText:
            say(err, "Der Quelltext ist leer, nichts zu übersetzen.");
            break;
        case NothingToCompile::PartOfWithoutLineEnd:
            say(err,
                "Hinter „#PART OF“ fehlt das Zeilenende: der Name der Projektdatei gilt erst mit "
                "einem Zeilenumbruch dahinter. Nichts übersetzt.");
            break;
        case NothingToCompile::DisassemblyWindow:
        case NothingToCompile::ProjectNotFound:  // the message box has said it
            break;
    }
}

int assemble(const Options& options, std::ostream& out, std::ostream& err) {
    std::error_code ec;
    const std::filesystem::path sourcePath = std::filesystem::absolute(options.source, ec);
    if (std::filesystem::is_directory(sourcePath, ec)) {
        say(err, options.source + " ist ein Ordner, kein Quelltext.");
        return kExitFailure;
    }
    if (!std::filesystem::exists(sourcePath, ec)) {
        say(err, "Datei " + options.source + " nicht gefunden.");
        return kExitFailure;
    }

    const TemporaryFolder temporary;
    if (temporary.path().empty()) {
        say(err, "kein Ordner für temporäre Dateien.");
        return kExitFailure;
    }
    AssemblerSettings assemblerSettings;
    assemblerSettings.programFolder =
        resolveProgramFolder(processProgramFolderSources(options.programFolder));
    const Settings settings = configuredSettings(assemblerSettings.programFolder, err);

    // The file is compiled as the workbench compiles a window showing it:
    // a member of a project compiles the project.
    CliHost host(out, err);
    Assembler assembler(host, assemblerSettings);
    const CompileResult result =
        compileWindow(assembler, host, settings,
                      {sourcePath.string(), readWholeFile(sourcePath.string()), options.switches,
                       temporary.path()});
    switch (result.status) {
        case CompileStatus::NothingToCompile:
            explainNothingCompiled(result.why, err);
            return kExitFailure;
        case CompileStatus::Aborted: return kExitFailure;
        case CompileStatus::Failed:
            if (const std::string hint = sourceTextHint(result.sourceText); !hint.empty()) {
                err << kTool << ": " << toTerminal(hint) << '\n';
            }
            return kExitFailure;
        case CompileStatus::Completed: break;
    }
    out << toTerminal(replaceAll(result.report, "\r\n", "\n")) << std::flush;
    // The code is right only where every statement kept its first length.
    for (const std::string& warning : result.lengthWarnings) {
        err << kTool << ": " << toTerminal(warning) << '\n';
    }
    return result.hasFindings || !result.lengthWarnings.empty() ? kExitFindings : kExitClean;
}

}  // namespace

int runKorvexAsm(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    return runTool<Options>(
        kTool, kHelp, out, err,
        [&](Options& options) { return parseArguments(args, options, err); },
        [&](const Options& options) { return assemble(options, out, err); });
}

}  // namespace korvex
