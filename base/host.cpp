#include "base/host.h"

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

}  // namespace korvex
