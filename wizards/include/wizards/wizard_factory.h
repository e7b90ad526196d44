#pragma once
// The wizards by chip, as the menu and korvex-wizard name them.

#include <memory>
#include <string>
#include <vector>

#include "wizards/core/wizard.h"

namespace korvex::wizards {

// The chips that have a wizard, in menu order ("52", ...).
std::vector<std::string> wizardChips();

// The wizard of `chip`, or nothing for a chip without one.
std::unique_ptr<Wizard> makeWizard(const std::string& chip, WizardHost& host,
                                   WizardOptions options);

}  // namespace korvex::wizards
