#pragma once
// Any chip's wizard without a screen, as korvex-wizard runs it: made by the
// factory, opened, with scripted answers, a fixed date and the decimal
// comma. `set` acts as the user does: the control's change operation, and
// for a typed field leaving it afterwards.

#include <memory>
#include <string>
#include <vector>

#include "wizards/core/wizard.h"
#include "wizards/core/wizard_host.h"

namespace korvex::wizards::testing {

class WizardSession {
  public:
    explicit WizardSession(const std::string& chip, const std::string& programFolder = "");

    // "ICheck1(4)" names a member of a control array; values are UTF-8.
    void set(const std::string& control, const std::string& value);
    void click(const std::string& control);
    // Settings as "FIELD=VALUE" pairs, in order; "!BUTTON" clicks.
    void apply(const std::vector<std::string>& settings);

    const std::string& program() const { return wizard_->previewText(); }
    // The program's lines in UTF-8, without their CR LF.
    std::vector<std::string> lines() const;
    bool hasLine(const std::string& utf8Line) const;
    // Whether the lines stand in the program one right after the other.
    bool hasBlock(const std::vector<std::string>& utf8Lines) const;
    std::vector<std::string> boxTexts(ScriptedWizardHost::Kind kind) const;

    // A control of the record, by name: its shown value in UTF-8 (text,
    // caption of a label, check or option index, list index).
    std::string value(const std::string& control) const;
    bool enabled(const std::string& control) const;
    bool visible(const std::string& control) const;

    Wizard& wizard() { return *wizard_; }
    ScriptedWizardHost host;

  private:
    const Control& control(const std::string& name) const;
    std::unique_ptr<Wizard> wizard_;
};

}  // namespace korvex::wizards::testing
