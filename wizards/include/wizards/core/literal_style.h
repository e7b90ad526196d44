#pragma once
// How a chip's wizard writes a register load. The family grew up in three
// hands: the base writes "mov TH1, #F3h", most chips "mov TH1, # F3h" with a
// blank behind the number sign, and the AT89 wizards use the language's
// assignment form "TH1 = #F3h". Each wizard keeps its own, as users compare
// the output with what they know.

#include <string>
#include <string_view>

namespace korvex::wizards {

enum class LiteralStyle { Compact, Blank, Assignment };

// "mov SP, #07h", "mov SP, # 07h" or "SP = #07h".
std::string registerLoad(LiteralStyle style, std::string_view target, std::string_view value);

// "orl TMOD, #01h" or "orl TMOD, # 01h". The assignment form has no
// counterpart for the logic operations: they stay compact there.
std::string registerOperation(LiteralStyle style, std::string_view mnemonic,
                              std::string_view target, std::string_view value);

}  // namespace korvex::wizards
