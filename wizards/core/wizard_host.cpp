#include "wizards/core/wizard_host.h"

namespace korvex::wizards {

WizardHost::~WizardHost() = default;

bool HostWizardHost::question(const std::string& title, const std::string& text) {
    return host_.messageBox(title, text, MessageButtons::YesNo, MessageIcon::Exclamation) ==
           MessageAnswer::Yes;
}

void HostWizardHost::note(const std::string& text) {
    host_.messageBox("", text, MessageButtons::Ok, MessageIcon::None);
}

void HostWizardHost::failure(const std::string& text) {
    host_.messageBox("", text, MessageButtons::Ok, MessageIcon::None);
}

std::string HostWizardHost::prompt(const std::string& title, const std::string& text,
                                   const std::string& defaultAnswer) {
    return prompt_ ? prompt_(title, text, defaultAnswer) : std::string();
}

bool ScriptedWizardHost::question(const std::string& title, const std::string& text) {
    bool yes = false;
    if (answers.empty()) {
        ++unanswered;
    } else {
        yes = answers.front();
        answers.pop_front();
    }
    boxes.push_back({Kind::Question, title, text, yes ? "ja" : "nein"});
    return yes;
}

void ScriptedWizardHost::note(const std::string& text) {
    boxes.push_back({Kind::Note, "", text, ""});
}

void ScriptedWizardHost::failure(const std::string& text) {
    boxes.push_back({Kind::Failure, "", text, ""});
}

std::string ScriptedWizardHost::prompt(const std::string& title, const std::string& text,
                                       const std::string&) {
    std::string input;
    if (inputs.empty()) {
        ++unanswered;
    } else {
        input = inputs.front();
        inputs.pop_front();
    }
    boxes.push_back({Kind::Prompt, title, text, input});
    return input;
}

}  // namespace korvex::wizards
