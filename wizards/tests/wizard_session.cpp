#include "wizard_session.h"

#include <stdexcept>

#include "base/cp1252.h"
#include "base/text.h"
#include "wizard_fixture.h"
#include "wizards/wizard_factory.h"

namespace korvex::wizards::testing {
namespace {

void split(const std::string& control, std::string& name, int& index) {
    const std::size_t open = control.find('(');
    name = control.substr(0, open);
    index =
        open == std::string::npos
            ? -1
            : static_cast<int>(parseDecimal(control.substr(open + 1, control.size() - open - 2)));
}

}  // namespace

WizardSession::WizardSession(const std::string& chip, const std::string& programFolder) {
    WizardOptions options;
    options.numberFormat.decimalMark = ',';
    options.now = [] { return std::string(kFixedDate); };
    options.programFolder = programFolder;
    wizard_ = makeWizard(chip, host, options);
    if (!wizard_) throw std::invalid_argument("kein Assistent für " + chip);
    wizard_->openWizard();
}

void WizardSession::set(const std::string& control, const std::string& value) {
    std::string name;
    int index = -1;
    split(control, name, index);
    wizard_->userSets(name, index, text8(value));
    const auto ref = wizard_->controls().find(name, index);
    const bool typed =
        std::holds_alternative<TextBox*>(*ref) ||
        (std::holds_alternative<ComboBox*>(*ref) && std::get<ComboBox*>(*ref)->editable);
    if (typed) wizard_->userLeaves(name, index);
}

void WizardSession::click(const std::string& control) {
    std::string name;
    int index = -1;
    split(control, name, index);
    wizard_->userClicks(name, index);
}

void WizardSession::apply(const std::vector<std::string>& settings) {
    for (const std::string& setting : settings) {
        if (startsWith(setting, "!")) {
            click(setting.substr(1));
            continue;
        }
        const std::size_t equals = setting.find('=');
        set(setting.substr(0, equals), setting.substr(equals + 1));
    }
}

std::vector<std::string> WizardSession::lines() const {
    std::vector<std::string> out;
    const std::string& text = program();
    std::size_t from = 0;
    while (from < text.size()) {
        const std::size_t end = text.find("\r\n", from);
        out.push_back(toUtf8(text.substr(from, end - from)));
        if (end == std::string::npos) break;
        from = end + 2;
    }
    return out;
}

bool WizardSession::hasLine(const std::string& utf8Line) const {
    return hasBlock({utf8Line});
}

bool WizardSession::hasBlock(const std::vector<std::string>& utf8Lines) const {
    const std::vector<std::string> all = lines();
    for (std::size_t i = 0; i + utf8Lines.size() <= all.size(); ++i) {
        bool match = true;
        for (std::size_t j = 0; match && j < utf8Lines.size(); ++j) {
            match = all[i + j] == utf8Lines[j];
        }
        if (match) return true;
    }
    return false;
}

std::vector<std::string> WizardSession::boxTexts(ScriptedWizardHost::Kind kind) const {
    std::vector<std::string> out;
    for (const auto& box : host.boxes) {
        if (box.kind == kind) out.push_back(toUtf8(box.text));
    }
    return out;
}

const Control& WizardSession::control(const std::string& control) const {
    std::string name;
    int index = -1;
    split(control, name, index);
    const auto ref = wizard_->controls().find(name, index);
    if (!ref) throw std::invalid_argument("kein Feld " + control);
    return baseOf(*ref);
}

std::string WizardSession::value(const std::string& name) const {
    std::string field;
    int index = -1;
    split(name, field, index);
    const auto ref = wizard_->controls().find(field, index);
    if (!ref) throw std::invalid_argument("kein Feld " + name);
    struct Shown {
        std::string operator()(const TextBox* c) const { return c->text; }
        std::string operator()(const CheckBox* c) const { return std::to_string(c->value); }
        std::string operator()(const OptionGroup* c) const { return std::to_string(c->selected); }
        std::string operator()(const ComboBox* c) const { return std::to_string(c->listIndex); }
        std::string operator()(const Slider* c) const { return std::to_string(c->value); }
        std::string operator()(const Label* c) const { return c->caption; }
        std::string operator()(const CommandButton* c) const { return c->caption; }
        std::string operator()(const Frame* c) const { return c->caption; }
    };
    return toUtf8(std::visit(Shown{}, *ref));
}

bool WizardSession::enabled(const std::string& name) const {
    return control(name).enabled;
}

bool WizardSession::visible(const std::string& name) const {
    return control(name).visible;
}

}  // namespace korvex::wizards::testing
