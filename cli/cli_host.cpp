#include "cli/cli_host.h"

#include "base/text.h"
#include "cli/terminal_text.h"

namespace korvex {
namespace {
std::string withUnixLineEnds(const std::string& text) {
    return replaceAll(text, "\r\n", "\n");
}
}  // namespace

MessageAnswer CliHost::messageBox(const std::string& title, const std::string& text,
                                  MessageButtons buttons, MessageIcon) {
    err_ << toTerminal(title) << ": " << toTerminal(withUnixLineEnds(text)) << '\n';
    // Without anyone to ask, a question takes its first answer.
    return buttons == MessageButtons::YesNo || buttons == MessageButtons::YesNoCancel
               ? MessageAnswer::Yes
               : MessageAnswer::Ok;
}

void CliHost::appendDialogText(const std::string& text) {
    dialogText_ += text;
    out_ << toTerminal(withUnixLineEnds(text)) << std::flush;
}

}  // namespace korvex
