#pragma once
// The help's contract: numbered topics in the main help and in the register
// help of each controller family, the keyword table behind F1, and the help
// commands of the menus.

#include <string>
#include <string_view>
#include <vector>

namespace korvex {

inline constexpr std::string_view kMainHelpFile = "korvex.hlp";

struct HelpRequest {
    enum class Kind { Topic, Contents, Keyword, Window };
    Kind kind = Kind::Contents;
    std::string file;     // the help file: kMainHelpFile or a register help file
    int topic = 0;        // Kind::Topic
    std::string keyword;  // Kind::Keyword; Kind::Window: the command that opens a window
};

// F1 on a word of a source or listing.
HelpRequest HelpForWord(const std::string& word);

// A help command of the menus (MnHelp...), with the register help chosen by
// the controller. Commands that open a window say so by Kind::Window.
HelpRequest HelpForCommand(std::string_view command, const std::string& controllerName);

// Every topic of the main help that the workbench can ask for.
std::vector<int> MainHelpTopics();
// The topics of a register help file besides its contents.
std::vector<int> RegisterHelpTopics();

}  // namespace korvex
