#pragma once
// A host whose message boxes answer from a script and are all recorded.

#include <deque>
#include <vector>

#include "base/host.h"

namespace korvex {

struct RecordedBox {
    std::string title;
    std::string text;
    MessageButtons buttons;
    MessageIcon icon;
};

class ScriptedHost : public QuietHost {
  public:
    explicit ScriptedHost(std::deque<MessageAnswer> answers = {}) : answers_(std::move(answers)) {}

    MessageAnswer messageBox(const std::string& title, const std::string& text,
                             MessageButtons buttons, MessageIcon icon) override {
        boxes.push_back(RecordedBox{title, text, buttons, icon});
        if (answers_.empty()) return QuietHost::messageBox(title, text, buttons, icon);
        const MessageAnswer answer = answers_.front();
        answers_.pop_front();
        return answer;
    }

    // The answer to a box still to come, after those scripted before.
    void script(MessageAnswer answer) { answers_.push_back(answer); }

    std::vector<RecordedBox> boxes;

  private:
    std::deque<MessageAnswer> answers_;
};

}  // namespace korvex
