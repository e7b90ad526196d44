#include "base/host.h"

#include "base/cp1252.h"

namespace korvex {

Host::~Host() = default;

MessageAnswer QuietHost::messageBox(const std::string& title, const std::string& text,
                                    MessageButtons buttons, MessageIcon) {
    lastBoxTitle = title;
    lastBoxText = text;
    ++boxCount;
    switch (buttons) {
        case MessageButtons::YesNo:
        case MessageButtons::YesNoCancel: return MessageAnswer::Yes;
        default: return MessageAnswer::Ok;
    }
}

std::optional<std::string> QuietHost::openWindowText(const std::string& caption) {
    for (const auto& [windowCaption, text] : windows) {
        if (upperCase(windowCaption) == upperCase(caption)) return text;
    }
    return std::nullopt;
}

}  // namespace korvex
