#pragma once
// Find and replace in a source window: the language of the search terms
// ("^t" a tab, "^p" a line end), the search that goes round the end of the
// text once, the search inside a selection, replace and replace all with its
// one level of undo. The state lives as long as the program; the dialog's
// boxes are handed in as they stand.

#include <cstdint>
#include <string>
#include <vector>

#include "base/host.h"
#include "workbench/editor_flags.h"
#include "workbench/text_control.h"

namespace korvex {

struct FindState {
    std::string SearchText;   // translated
    std::string ReplaceText;  // translated
    std::int16_t FindOptions = 0;
    std::int16_t FindCaseChecked = 0;
    std::int16_t FindWordChecked = 0;
    std::int16_t FindSelectChecked = 0;
    bool FindFirstPass = false;
    bool FindWrapped = false;
    bool FindDialogOpen = false;
    std::int32_t FindStart = 0;
    std::int32_t FindLength = 0;
    std::int32_t FindEnd = 0;
    std::vector<std::string> FindHistory;
    std::vector<std::string> ReplaceHistory;
    std::string UndoText;
};

// The dialog's boxes as the user left them.
struct FindBoxes {
    std::string findText;     // FindCombo, as typed
    std::string replaceText;  // ReplaceCombo, as typed
    bool matchCase = false;
    bool wholeWord = false;
    bool selectionOnly = false;  // chkSelect ticked (and enabled)
};

// The long forms of the drop-down lists.
inline constexpr std::string_view kTabForm = "^t (Tabulator)";
inline constexpr std::string_view kLineEndForm = "^p (Absatzmarke)";

std::string translateSearchTerm(const std::string& term);
// Only "^t" counts inside a longer replacement: "^p" stays as it is typed.
std::string translateReplacement(const std::string& replacement);
// A term as the boxes show it.
std::string shownTerm(const std::string& term);

// What the dialog shows when it opens on the active text.
struct FindOpening {
    bool fromSelection = false;  // `term` replaces what the box held
    std::string term;
    bool selectEnabled = false;  // chkSelect
};
FindOpening openFindDialog(FindState& state, const TextControl& box);

// A term goes to the front of its history unless it is there already.
void rememberTerm(std::vector<std::string>& history, const std::string& term);

// What a search ended in; `backToStart`: the selection went back to where
// the search began (the workbench then gives the text the focus when the
// dialog is closed).
struct FindOutcome {
    bool hit = false;
    bool backToStart = false;
};

class FindReplace {
  public:
    FindReplace(FindState& state, EditorFlags& flags, Host& host)
        : state_(state), flags_(flags), host_(host) {}

    // The boxes go to the histories and the state before a search.
    void TakeOverFindBox(const FindBoxes& boxes);
    void TakeOverReplaceBox(const FindBoxes& boxes);

    // cmdFind: from the caret on.
    FindOutcome FindButton(TextControl& box, const FindBoxes& boxes);
    // F3: false when there is nothing to search for (the dialog opens instead).
    bool FindNext(TextControl& box, bool selectionOnly, FindOutcome* outcome = nullptr);
    FindOutcome FindText(TextControl& box, std::int32_t start, bool selectionOnly);
    // cmdReplace: the hit is replaced if it is what the box says, exactly.
    FindOutcome Replace(TextControl& box, const FindBoxes& boxes);
    // cmdReplaceAll; returns the count, which also enables cmdUndo.
    int ReplaceAll(TextControl& box, const FindBoxes& boxes);
    // cmdUndo: the text before the last replace all.
    void UndoReplaceAll(TextControl& box);

  private:
    void say(const std::string& text);
    FindOutcome backToStart(TextControl& box);

    FindState& state_;
    EditorFlags& flags_;
    Host& host_;
};

}  // namespace korvex
