#pragma once
// What a wizard asks of the screen: a conflict question (title "Konflikt",
// Yes and No, the warning symbol), a note, the failure box of the
// arithmetic, and the input box of "Frequenz vorgeben". The base Host has no
// input box, so the wizards have this interface of their own; an adapter
// puts the boxes on a Host. All texts are Windows-1252.

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "base/host.h"

namespace korvex::wizards {

class WizardHost {
  public:
    virtual ~WizardHost();

    // Yes is true.
    virtual bool question(const std::string& title, const std::string& text) = 0;
    // An ordinary box with one button and no title of its own.
    virtual void note(const std::string& text) = 0;
    // The box of a failure that a change operation caught.
    virtual void failure(const std::string& text) = 0;
    // An input box; Cancel gives the empty text, as the classic input box does.
    virtual std::string prompt(const std::string& title, const std::string& text,
                               const std::string& defaultAnswer) = 0;
};

// Questions, notes and failures as message boxes of a Host; the input box by
// a function of the shell.
class HostWizardHost : public WizardHost {
  public:
    using PromptFunction =
        std::function<std::string(const std::string&, const std::string&, const std::string&)>;
    HostWizardHost(Host& host, PromptFunction prompt) : host_(host), prompt_(std::move(prompt)) {}

    bool question(const std::string& title, const std::string& text) override;
    void note(const std::string& text) override;
    void failure(const std::string& text) override;
    std::string prompt(const std::string& title, const std::string& text,
                       const std::string& defaultAnswer) override;

  private:
    Host& host_;
    PromptFunction prompt_;
};

// Scripted answers and inputs, every box recorded: the tests and the
// command line. A question or an input box without a scripted answer is
// recorded and counted as unanswered; it answers No or Cancel.
class ScriptedWizardHost : public WizardHost {
  public:
    enum class Kind { Question, Note, Failure, Prompt };
    struct Box {
        Kind kind;
        std::string title;
        std::string text;
        std::string answer;  // "ja"/"nein" for a question, the input for a prompt
    };

    bool question(const std::string& title, const std::string& text) override;
    void note(const std::string& text) override;
    void failure(const std::string& text) override;
    std::string prompt(const std::string& title, const std::string& text,
                       const std::string& defaultAnswer) override;

    std::deque<bool> answers;
    std::deque<std::string> inputs;
    std::vector<Box> boxes;
    int unanswered = 0;
};

}  // namespace korvex::wizards
