#include "wizards/wizard_factory.h"

#include <functional>
#include <utility>

#include "wizards/assistent320/assistent320.h"
#include "wizards/assistent4052/assistent4052.h"
#include "wizards/assistent51/assistent51.h"
#include "wizards/assistent515/assistent515.h"
#include "wizards/assistent517/assistent517.h"
#include "wizards/assistent52/assistent52.h"
#include "wizards/assistent552/assistent552.h"
#include "wizards/assistent8253/assistent8253.h"
#include "wizards/assistent89s53/assistent89s53.h"

namespace korvex::wizards {
namespace {

using Maker = std::function<std::unique_ptr<Wizard>(WizardHost&, WizardOptions)>;

template <typename W>
Maker maker() {
    return [](WizardHost& host, WizardOptions options) {
        return std::make_unique<W>(host, std::move(options));
    };
}

// In menu order.
const std::vector<std::pair<std::string, Maker>>& wizards() {
    static const std::vector<std::pair<std::string, Maker>> table = {
        {"51", maker<assistent51::Assistent51>()},
        {"52", maker<assistent52::Assistent52>()},
        {"89S53", maker<assistent89s53::Assistent89S53>()},
        {"8253", maker<assistent8253::Assistent8253>()},
        {"4052", maker<assistent4052::Assistent4052>()},
        {"320", maker<assistent320::Assistent320>()},
        {"515", maker<assistent515::Assistent515>()},
        {"517", maker<assistent517::Assistent517>()},
        {"552", maker<assistent552::Assistent552>()},
    };
    return table;
}

}  // namespace

std::vector<std::string> wizardChips() {
    std::vector<std::string> chips;
    for (const auto& [chip, make] : wizards()) chips.push_back(chip);
    return chips;
}

std::unique_ptr<Wizard> makeWizard(const std::string& chip, WizardHost& host,
                                   WizardOptions options) {
    for (const auto& [key, make] : wizards()) {
        if (key == chip) return make(host, std::move(options));
    }
    return nullptr;
}

}  // namespace korvex::wizards
