#pragma once
// The logic reaches the screen only through this interface. The command-line
// tools, the Qt workbench and the tests each implement it; tests script the
// answers and record the boxes. All texts are Windows-1252.

#include <map>
#include <optional>
#include <string>

namespace korvex {

enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageIcon { None, Information, Question, Exclamation, Critical };
enum class MessageAnswer { Ok, Cancel, Yes, No };

class Host {
  public:
    virtual ~Host();

    virtual MessageAnswer messageBox(const std::string& title, const std::string& text,
                                     MessageButtons buttons, MessageIcon icon) = 0;

    // Lets pending user events run, so that a Cancel press can reach a long run.
    virtual void processPendingEvents() = 0;

    // The compile dialog's text: replaced by the report, appended to by the
    // include reader ("Lese ...").
    virtual void setDialogText(const std::string& text) = 0;
    virtual void appendDialogText(const std::string& text) = 0;

    // The present text of an editor window with this caption (compared in
    // upper case), if one is open.
    virtual std::optional<std::string> openWindowText(const std::string& caption) = 0;
};

// A host without a screen: every box answers its first button and is
// remembered, dialog text is collected, and the editor windows are a map from
// caption to text.
class QuietHost : public Host {
  public:
    MessageAnswer messageBox(const std::string& title, const std::string& text,
                             MessageButtons buttons, MessageIcon icon) override;
    void processPendingEvents() override {}
    void setDialogText(const std::string& text) override { dialogText = text; }
    void appendDialogText(const std::string& text) override {
        dialogText += text;
        appendedText += text;
    }
    std::optional<std::string> openWindowText(const std::string& caption) override;

    std::map<std::string, std::string> windows;
    std::string dialogText;
    std::string appendedText;
    std::string lastBoxTitle;
    std::string lastBoxText;
    int boxCount = 0;
};

}  // namespace korvex
