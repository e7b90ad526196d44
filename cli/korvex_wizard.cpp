// korvex-wizard: runs a chip wizard without a screen. The settings are
// changed in the order given, each through the operation of its control as a
// user's click would run it, and the generated program is printed.

#include <algorithm>
#include <deque>
#include <iostream>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "base/cp1252.h"
#include "base/failure.h"
#include "base/files.h"
#include "base/program_folder.h"
#include "base/text.h"
#include "cli/run_guard.h"
#include "cli/terminal_text.h"
#include "wizards/core/wizard_host.h"
#include "wizards/wizard_factory.h"

namespace {

using namespace korvex;
using namespace korvex::wizards;

constexpr const char* kHelpHead =
    "Aufruf: korvex-wizard CHIP [Optionen]\n"
    "\n"
    "Führt einen Chip-Assistenten ohne Bildschirm aus und gibt das erzeugte\n"
    "Startprogramm aus. Die Einstellungen werden in der angegebenen Reihenfolge\n"
    "geändert, jede über die Regel ihres Steuerelements, wie ein Mausklick sie\n"
    "auslöst: Rückfragen, Hinweise und Sperren gelten wie im Dialog.\n"
    "\n"
    "Chips:\n";

constexpr const char* kHelp =
    "\n"
    "Optionen:\n"
    "  --set FELD=WERT      ein Feld ändern. Kontrollkästchen nehmen 0 oder 1,\n"
    "                       Optionsgruppen und Listen den Index, Textfelder und\n"
    "                       editierbare Listen ihren Text (danach wird das Feld\n"
    "                       verlassen). Feldreihen mit Index: ICheck1(4)=1\n"
    "  --click FELD         eine Schaltfläche drücken, z. B. T2Command1\n"
    "  --answer ja|nein     Antwort auf die nächste Rückfrage „Konflikt“\n"
    "  --input TEXT         Eingabe für das nächste Eingabefeld (Frequenz vorgeben)\n"
    "  --date TEXT          Datum und Uhrzeit im Programmkopf festlegen\n"
    "  --decimal-point      Dezimalpunkt statt Dezimalkomma in Zahlen\n"
    "  --fields             nach dem Programm alle Felder mit Zustand ausgeben\n"
    "  -o DATEI             Programm als Datei schreiben (Windows-1252, CR LF)\n"
    "  --program-folder ORDNER  Programmordner, aus dem ein Assistent liest\n"
    "                       (c552iic.dat für den 80C552)\n"
    "  --help               diese Hilfe zeigen\n"
    "\n"
    "Meldungen und Rückfragen erscheinen auf der Standardfehlerausgabe.\n"
    "\n"
    "Rückgabewerte: 0 fertig, 2 Fehler (Laufzeitfehler, Rückfrage ohne Antwort,\n"
    "gesperrtes Feld), 64 falscher Aufruf.\n";

enum class ActionKind { Set, Click };

struct Action {
    ActionKind kind;
    std::string name;
    int index = -1;
    std::string value;
};

struct Options {
    std::string chip;
    std::vector<Action> actions;
    std::deque<bool> answers;
    std::deque<std::string> inputs;
    std::string date;
    bool dateGiven = false;
    bool decimalPoint = false;
    bool fields = false;
    std::string outputFile;
    std::string programFolder;
};

int usageError(const std::string& message) {
    std::cerr << "korvex-wizard: " << message << "\n"
              << "Aufruf: korvex-wizard CHIP [--set FELD=WERT]... [--click FELD]... "
                 "[--answer ja|nein]... [--input TEXT]... [--date TEXT] [-o DATEI]\n";
    return kExitUsage;
}

// "ICheck1(4)" to name and index; false if the form is wrong.
bool splitControl(const std::string& text, std::string& name, int& index) {
    const std::size_t open = text.find('(');
    if (open == std::string::npos) {
        name = text;
        index = -1;
        return !name.empty();
    }
    if (text.back() != ')' || open == 0) return false;
    name = text.substr(0, open);
    const std::int64_t n = parseDecimal(text.substr(open + 1, text.size() - open - 2), -1);
    if (n < 0 || n > 99) return false;
    index = static_cast<int>(n);
    return true;
}

// Boxes go to standard error as they come; questions take the scripted answers.
class CliWizardHost : public ScriptedWizardHost {
  public:
    bool question(const std::string& title, const std::string& text) override {
        const bool answered = !answers.empty();
        const bool yes = ScriptedWizardHost::question(title, text);
        std::cerr << toTerminal(title + ": " + replaceAll(text, "\r\n", "\n")) << "\n  -> "
                  << (answered ? (yes ? "ja" : "nein") : "keine Antwort") << '\n';
        return yes;
    }
    void note(const std::string& text) override {
        ScriptedWizardHost::note(text);
        std::cerr << toTerminal(replaceAll(text, "\r\n", "\n")) << '\n';
    }
    void failure(const std::string& text) override {
        ScriptedWizardHost::failure(text);
        std::cerr << toTerminal(replaceAll(text, "\r\n", "\n")) << '\n';
    }
    std::string prompt(const std::string& title, const std::string& text,
                       const std::string& defaultAnswer) override {
        const bool answered = !inputs.empty();
        const std::string input = ScriptedWizardHost::prompt(title, text, defaultAnswer);
        std::cerr << toTerminal(title + ": " + replaceAll(text, "\r\n", "\n")) << "\n  -> "
                  << (answered ? toTerminal(input) : "keine Eingabe") << '\n';
        return input;
    }
};

std::string describe(const ControlRef& ref) {
    struct Describe {
        std::string operator()(const TextBox* c) const { return "\"" + c->text + "\""; }
        std::string operator()(const CheckBox* c) const { return std::to_string(c->value); }
        std::string operator()(const OptionGroup* c) const {
            std::string text = std::to_string(c->selected);
            for (std::size_t i = 0; i < c->buttons.size(); ++i) {
                const OptionButton& b = c->buttons[i];
                text += "\n    (" + std::to_string(i) + ") \"" + b.caption + "\"";
                if (!b.enabled) text += text8(" gesperrt");
                if (!b.visible) text += " verborgen";
            }
            return text;
        }
        std::string operator()(const ComboBox* c) const {
            return std::to_string(c->listIndex) + " \"" + c->text + "\"";
        }
        std::string operator()(const Slider* c) const {
            return std::to_string(c->value) + " (" + std::to_string(c->minimum) + ".." +
                   std::to_string(c->maximum) + ")";
        }
        std::string operator()(const Label* c) const { return "\"" + c->caption + "\""; }
        std::string operator()(const CommandButton* c) const { return "\"" + c->caption + "\""; }
        std::string operator()(const Frame*) const { return ""; }
    };
    const Control& base = baseOf(ref);
    std::string text = std::visit(Describe{}, ref);
    if (const auto* box = std::get_if<CheckBox*>(&ref); box && !(*box)->caption.empty()) {
        text += " \"" + (*box)->caption + "\"";
    }
    if (!base.enabled) text += text8(" gesperrt");
    if (!base.visible) text += " verborgen";
    return text;
}

int parseArguments(const std::vector<std::string>& args, Options& options) {
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        const auto next = [&](const char* what) -> const std::string* {
            if (i + 1 >= args.size()) return nullptr;
            (void)what;
            return &args[++i];
        };
        if (arg == "--set" || arg == "--click") {
            const std::string* value = next(arg.c_str());
            if (value == nullptr) return usageError(arg + " braucht ein Feld.");
            Action action;
            action.kind = arg == "--set" ? ActionKind::Set : ActionKind::Click;
            std::string target = *value;
            if (action.kind == ActionKind::Set) {
                const std::size_t equals = value->find('=');
                if (equals == std::string::npos) return usageError("--set braucht FELD=WERT.");
                target = value->substr(0, equals);
                action.value = fromUtf8(value->substr(equals + 1));
            }
            if (!splitControl(target, action.name, action.index)) {
                return usageError("unzulässiger Feldname " + target);
            }
            options.actions.push_back(action);
        } else if (arg == "--answer") {
            const std::string* value = next("--answer");
            if (value == nullptr || (*value != "ja" && *value != "nein")) {
                return usageError("--answer braucht ja oder nein.");
            }
            options.answers.push_back(*value == "ja");
        } else if (arg == "--input") {
            const std::string* value = next("--input");
            if (value == nullptr) return usageError("--input braucht einen Text.");
            options.inputs.push_back(fromUtf8(*value));
        } else if (arg == "--date") {
            const std::string* value = next("--date");
            if (value == nullptr) return usageError("--date braucht einen Text.");
            options.date = fromUtf8(*value);
            options.dateGiven = true;
        } else if (arg == "-o") {
            const std::string* value = next("-o");
            if (value == nullptr) return usageError("-o braucht einen Dateinamen.");
            options.outputFile = *value;
        } else if (arg == "--program-folder") {
            const std::string* value = next("--program-folder");
            if (value == nullptr) return usageError("--program-folder braucht einen Ordner.");
            options.programFolder = *value;
        } else if (arg == "--decimal-point") {
            options.decimalPoint = true;
        } else if (arg == "--fields") {
            options.fields = true;
        } else if (startsWith(arg, "-")) {
            return usageError("unbekannte Option " + arg);
        } else if (options.chip.empty()) {
            options.chip = arg;
        } else {
            return usageError("nur ein Chip ist möglich.");
        }
    }
    if (options.chip.empty()) return usageError("kein Chip angegeben.");
    const std::vector<std::string> chips = wizardChips();
    if (std::find(chips.begin(), chips.end(), options.chip) == chips.end()) {
        return usageError("unbekannter Chip " + options.chip + ".");
    }
    return kExitClean;
}

int runWizard(const std::vector<std::string>& args) {
    for (const auto& arg : args) {
        if (arg == "--help" || arg == "-h") {
            std::cout << toTerminal(text8(kHelpHead));
            ScriptedWizardHost quiet;
            for (const std::string& chip : wizardChips()) {
                const std::string title = makeWizard(chip, quiet, {})->windowTitle();
                std::cout << "  " << chip << std::string(21 - chip.size(), ' ')
                          << toTerminal(trimBlanks(title)) << '\n';
            }
            std::cout << toTerminal(text8(kHelp));
            return kExitClean;
        }
    }
    Options options;
    if (const int status = parseArguments(args, options); status != kExitClean) return status;

    CliWizardHost host;
    host.answers = options.answers;
    host.inputs = options.inputs;
    WizardOptions wizardOptions;
    wizardOptions.numberFormat.decimalMark = options.decimalPoint ? '.' : ',';
    if (options.dateGiven) wizardOptions.now = [date = options.date] { return date; };
    wizardOptions.programFolder =
        resolveProgramFolder(processProgramFolderSources(options.programFolder));

    try {
        const std::unique_ptr<Wizard> wizard = makeWizard(options.chip, host, wizardOptions);
        wizard->openWizard();
        for (const Action& action : options.actions) {
            if (action.kind == ActionKind::Click) {
                wizard->userClicks(action.name, action.index);
                continue;
            }
            wizard->userSets(action.name, action.index, action.value);
            const auto control = wizard->controls().find(action.name, action.index);
            const bool typed = std::holds_alternative<TextBox*>(*control) ||
                               (std::holds_alternative<ComboBox*>(*control) &&
                                std::get<ComboBox*>(*control)->editable);
            if (typed) wizard->userLeaves(action.name, action.index);
        }
        if (host.unanswered > 0) {
            std::cerr << toTerminal(
                             text8("korvex-wizard: eine Rückfrage oder Eingabe blieb ohne Antwort "
                                   "(--answer, --input)."))
                      << '\n';
            return kExitFailure;
        }
        const std::string& program = wizard->previewText();
        if (!options.outputFile.empty()) {
            writeWholeFile(options.outputFile, program);
        } else {
            std::cout << toTerminal(replaceAll(program, "\r\n", "\n"));
        }
        if (options.fields) {
            for (const auto& [key, ref] : wizard->controls().all()) {
                std::cout << toTerminal(key + " = " + replaceAll(describe(ref), "\r\n", "\\n"))
                          << '\n';
            }
        }
    } catch (const ControlUseError& error) {
        if (error.unknown()) return usageError(toTerminal(error.what()));
        std::cerr << "korvex-wizard: " << toTerminal(error.what()) << '\n';
        return kExitFailure;
    }
    return kExitClean;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    return toolMain("korvex-wizard", [&] { return runWizard(args); });
}
