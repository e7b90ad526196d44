// handleDirective: statements that begin with "#". The answer true hands the
// text on to processStatement, where an unknown directive fails as a statement.

#include "assembler/assembler.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {

bool Assembler::handleDirective(std::string& text) {
    bool passOn = false;
    try {
        for (char& c : text) {
            if (c == '\t') c = ' ';
        }
        text = replaceAll(text, "  ", " ");
        if (startsWith(text, "# ")) text.erase(1, 1);
        const std::string upper = upperCase(text);

        if (startsWith(upper, "#DEF ")) {
            defineMacro(text);
        } else if (startsWith(upper, "#INCLUDE ")) {
            openInclude(text);
        } else if (startsWith(upper, "#CPU")) {
            readCpuDriver(removeAll(text.substr(1), ' '), "");
        } else if (startsWith(upper, "#USE ")) {
            const std::string choice = upperCase(trimLeftBlanks(text.substr(5)));
            if (choice == "ACALL") {
                state_.useLongCall = false;
            } else if (choice == "LCALL") {
                state_.useLongCall = true;
            } else {
                state_.errorNumber = Finding::InvalidOperandCombination;
            }
        } else if (startsWith(upper, "#BYTE ")) {
            declareList(text.substr(6), "BYTE");
        } else if (startsWith(upper, "#BIT ")) {
            declareList(text.substr(5), "BIT");
        } else if (startsWith(upper, "#CONST ")) {
            declareList(text.substr(7), "CONST");
        } else if (startsWith(upper, "#WORD ")) {
            declareList(text.substr(6), "WORD");
        } else if (startsWith(upper, "#EXCLUDE ")) {
            const std::string range = upperCase(trimLeftBlanks(text.substr(9)));
            if (startsWith(range, "BYTE ")) {
                excludeRange(range, false);
            } else if (startsWith(range, "BIT ")) {
                excludeRange(range, true);
            } else {
                passOn = true;
            }
        } else if (startsWith(upper, "#PART OF ")) {
            // Acts before the run, when the compile command picks the project.
        } else {
            passOn = true;
        }
    } catch (...) {
        const RuntimeFailure failure = currentFailure();
        host_.messageBox("Korvex",
                         "Fehler " + decimalText(failure.number(), true) + ": " +
                             failure.description() + "." + failureDetails(failure),
                         MessageButtons::Ok, MessageIcon::Critical);
        return true;
    }
    // A directive behind another statement of its line takes no row of its own.
    if (state_.sourceTable.size() == static_cast<std::size_t>(state_.currentRow) + 1) {
        setCodeText(std::string(kFourTabs));
        ++state_.currentRow;
    }
    return passOn;
}

}  // namespace korvex
