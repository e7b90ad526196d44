// Every chip wizard, set up with most of its units in use, writes its
// program anew after one change of a field: the work behind each keystroke
// in a wizard's dialog. The goal is well under 2 ms per change.

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "wizards/core/wizard.h"
#include "wizards/core/wizard_host.h"
#include "wizards/wizard_factory.h"

namespace {

using namespace korvex::wizards;

// Settings that most chips know; a chip skips what it lacks or refuses.
const std::vector<std::pair<std::string, std::string>>& busySettings() {
    static const std::vector<std::pair<std::string, std::string>> settings = {
        {"SCheck1", "1"},     {"SText2", "30"},     {"UCheck1", "1"},     {"UOption1", "1"},
        {"UCheck3", "1"},     {"T0Combo1", "2"},    {"T0Text2", "9C"},    {"T0Check2", "1"},
        {"T2Check0", "1"},    {"SPICheck1", "1"},   {"SPICheck2", "1"},   {"WCheck2", "1"},
        {"WDCheck1", "1"},    {"ADCheck1", "1"},    {"U1Check1", "1"},    {"BCheckTakt", "1"},
        {"BList(0)", "1"},    {"BList(4)", "1"},    {"BList(8)", "1"},    {"ICCheck1", "1"},
        {"ICheck3", "1"},     {"PWMCheck1", "1"},   {"CaktivCheck", "1"}, {"MDU1", "1"},
        {"MDU4", "1"},        {"MDU5", "1"},        {"MDUText1", "9"},    {"CTCheck1", "1"},
        {"CMCheck1(0)", "1"}, {"ICheck1(1)", "1"},  {"ICheck1(4)", "1"},  {"ICheck1(5)", "1"},
        {"ICheck1(9)", "1"},  {"ICheck1(12)", "1"}, {"ICheck0", "1"},
    };
    return settings;
}

bool set(Wizard& wizard, const std::string& control, const std::string& value) {
    const std::size_t open = control.find('(');
    const std::string name = control.substr(0, open);
    const int index = open == std::string::npos ? -1 : std::stoi(control.substr(open + 1));
    try {
        wizard.userSets(name, index, value);
        return true;
    } catch (const ControlUseError&) {
        return false;  // not a control of this chip, or not usable with the others set
    }
}

void BM_RegenerateAfterOneChange(benchmark::State& state) {
    const std::string chip = wizardChips()[static_cast<std::size_t>(state.range(0))];
    state.SetLabel(chip);
    ScriptedWizardHost host;
    WizardOptions options;
    options.now = [] { return std::string("01.01.2026 12:00:00"); };
    options.programFolder = std::string(KORVEX_DATA_DIR) + "/";
    const std::unique_ptr<Wizard> wizard = makeWizard(chip, host, options);
    wizard->openWizard();
    int taken = 0;
    for (const auto& [control, value] : busySettings())
        taken += set(*wizard, control, value) ? 1 : 0;
    bool flip = false;
    for (auto _ : state) {
        wizard->userSets("SText5", -1, flip ? "Prüfstand" : "Förderband");
        flip = !flip;
        benchmark::DoNotOptimize(wizard->previewText().size());
    }
    state.counters["Zeichen"] = static_cast<double>(wizard->previewText().size());
    state.counters["Felder"] = taken;
}
BENCHMARK(BM_RegenerateAfterOneChange)->DenseRange(0, 8)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
