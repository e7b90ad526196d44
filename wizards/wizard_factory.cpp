#include "wizards/wizard_factory.h"

#include "wizards/assistent52/assistent52.h"

namespace korvex::wizards {

std::vector<std::string> wizardChips() {
    return {"52"};
}

std::unique_ptr<Wizard> makeWizard(const std::string& chip, WizardHost& host,
                                   WizardOptions options) {
    if (chip == "52") return std::make_unique<assistent52::Assistent52>(host, std::move(options));
    return nullptr;
}

}  // namespace korvex::wizards
