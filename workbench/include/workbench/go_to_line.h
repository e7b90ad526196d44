#pragma once
// Go to line: the user names a line, the caret goes to its start.

#include <functional>
#include <string>

#include "workbench/text_control.h"

namespace korvex {

// An input box: title, prompt and the answer offered; Cancel gives the empty
// text, as the classic input box does. Texts are Windows-1252.
using PromptFunction =
    std::function<std::string(const std::string&, const std::string&, const std::string&)>;

// Asks "Neue Zeilennummer eingeben", offering the caret's line from 1. The
// answer is read by its leading number; 1 and less (an empty answer, a
// cancel) do nothing, so line 1 isn't reached this way. A line past the
// end, and the last line when the text doesn't end in CR LF, put the caret
// at the end of the text. The focus is the caller's.
void GoToLine(TextControl& box, const PromptFunction& prompt);

// The classic Val: blanks and tabs skipped, a sign, digits, a decimal point
// and an exponent; what can't be read ends the number, nothing usable is 0.
double LeadingNumber(const std::string& text);

}  // namespace korvex
