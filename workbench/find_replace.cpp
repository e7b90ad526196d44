#include "workbench/find_replace.h"

#include <algorithm>

#include "base/cp1252.h"
#include "base/text.h"
#include "workbench/captions.h"
#include "workbench/editor_guards.h"

namespace korvex {
namespace {

constexpr std::string_view kSearched = "Der angegebene Bereich wurde durchsucht.";

std::string joined(std::string_view first, std::string_view second) {
    return std::string(first) + std::string(second);
}

}  // namespace

std::string translateSearchTerm(const std::string& term) {
    const std::string trimmed = trimBlanks(term);
    std::string text = term;
    if (trimmed == kTabForm)
        text = "\t";
    else if (trimmed == kLineEndForm)
        text = "\r\n";
    else if (trimmed == joined(kTabForm, kLineEndForm))
        text = "\t\r\n";
    else if (trimmed == joined(kLineEndForm, kTabForm))
        text = "\r\n\t";
    return replaceAll(replaceAll(text, "^t", "\t"), "^p", "\r\n");
}

std::string translateReplacement(const std::string& replacement) {
    const std::string trimmed = trimBlanks(replacement);
    if (trimmed == kTabForm) return "\t";
    if (trimmed == kLineEndForm) return "\r\n";
    // Without a "^t", the line end step looks for "^t" too and so leaves a
    // "^p" as it stands.
    return replaceAll(replacement, "^t",
                      replacement.find("^t") != std::string::npos ? "\t" : "\r\n");
}

std::string shownTerm(const std::string& term) {
    if (term == "\r\n") return std::string(kLineEndForm);
    if (term == "\t") return std::string(kTabForm);
    if (term == "\t\r\n") return "^t^p";
    if (term == "\r\n\t") return "^p^t";
    return replaceAll(term, "\t", "^t");
}

FindOpening openFindDialog(FindState& state, const TextControl& box) {
    FindOpening opening;
    if (box.SelLength() > 0) {
        std::string text = box.SelText();
        if (text != "\r\n" && text != "\t" && text != "\t\r\n" && text != "\r\n\t") {
            const std::size_t lineEnd = text.find("\r\n");
            if (lineEnd != std::string::npos) {
                // Several lines: the first is the term, searched inside them.
                text.resize(lineEnd);
                state.FindSelectChecked = 1;
            }
        }
        opening.fromSelection = true;
        opening.term = shownTerm(text);
        opening.selectEnabled = true;
    } else {
        state.FindSelectChecked = 0;
    }
    state.FindStart = box.SelStart();
    state.FindLength = box.SelLength();
    state.FindEnd = state.FindStart + state.FindLength;
    return opening;
}

void rememberTerm(std::vector<std::string>& history, const std::string& term) {
    if (std::find(history.begin(), history.end(), term) == history.end())
        history.insert(history.begin(), term);
}

void FindReplace::TakeOverFindBox(const FindBoxes& boxes) {
    rememberTerm(state_.FindHistory, boxes.findText);
    state_.SearchText = translateSearchTerm(boxes.findText);
    state_.FindOptions = static_cast<std::int16_t>((boxes.matchCase ? kFindMatchCase : 0) +
                                                   (boxes.wholeWord ? kFindWholeWord : 0));
}

void FindReplace::TakeOverReplaceBox(const FindBoxes& boxes) {
    rememberTerm(state_.ReplaceHistory, boxes.replaceText);
    state_.ReplaceText = translateReplacement(boxes.replaceText);
}

void FindReplace::say(const std::string& text) {
    host_.messageBox(std::string(kMainCaption), text, MessageButtons::Ok, MessageIcon::Exclamation);
}

FindOutcome FindReplace::backToStart(TextControl& box) {
    box.Select(state_.FindStart, state_.FindLength);
    return FindOutcome{false, true};
}

FindOutcome FindReplace::FindButton(TextControl& box, const FindBoxes& boxes) {
    TakeOverFindBox(boxes);
    return FindText(box, box.SelStart(), boxes.selectionOnly);
}

bool FindReplace::FindNext(TextControl& box, bool selectionOnly, FindOutcome* outcome) {
    if (state_.SearchText.empty()) return false;
    if (!state_.FindFirstPass) {
        state_.FindFirstPass = true;
        state_.FindStart = box.SelStart();
        state_.FindLength = box.SelLength();
    }
    const FindOutcome result = FindText(box, box.SelStart(), selectionOnly);
    if (outcome != nullptr) *outcome = result;
    return true;
}

FindOutcome FindReplace::FindText(TextControl& box, std::int32_t start, bool selectionOnly) {
    FlagGuard selection(flags_.SuspendSelChange);
    const std::string& term = state_.SearchText;
    const int options = state_.FindOptions;
    const std::string notFound = "\"" + term + "\" wurde nicht gefunden.";

    if (selectionOnly) {
        // The first search starts one behind the selection's start.
        if (box.Find(term, start + 1, state_.FindEnd, options) >= 0) {
            state_.FindWrapped = true;
            return FindOutcome{true, false};
        }
        say(state_.FindWrapped ? std::string(kSearched) : notFound);
        state_.FindWrapped = false;
        return backToStart(box);
    }

    // A hit that is selected already is not found again.
    if (box.SelLength() != 0) ++start;
    const std::int32_t hit = box.Find(term, start, -1, options);
    if (hit < 0 && !state_.FindWrapped) {
        const std::int32_t again = box.Find(term, 0, -1, options);
        if (again >= 0 && again < state_.FindStart) {
            state_.FindWrapped = true;
            return FindOutcome{true, false};
        }
        say(again >= 0 ? std::string(kSearched) : notFound);
        if (again < 0) state_.FindFirstPass = false;
        return backToStart(box);
    }
    if (hit < 0) {
        say(std::string(kSearched));
        state_.FindWrapped = false;
        return backToStart(box);
    }
    if (state_.FindWrapped && hit >= state_.FindStart) {
        // Round the end and past the place where the search began.
        say(std::string(kSearched));
        state_.FindWrapped = false;
        state_.FindFirstPass = false;
        return backToStart(box);
    }
    return FindOutcome{true, false};
}

FindOutcome FindReplace::Replace(TextControl& box, const FindBoxes& boxes) {
    state_.ReplaceText = translateReplacement(boxes.replaceText);
    // Only what the box says, case and all, and the replacement as typed.
    if (!boxes.findText.empty() && box.SelText() == boxes.findText)
        box.SetSelText(boxes.replaceText);
    return FindButton(box, boxes);
}

int FindReplace::ReplaceAll(TextControl& box, const FindBoxes& boxes) {
    if (boxes.findText.empty()) return 0;
    TakeOverFindBox(boxes);
    TakeOverReplaceBox(boxes);
    int count = 0;
    {
        FlagGuard selection(flags_.SuspendSelChange);
        FlagGuard change(flags_.SuspendChange);
        state_.UndoText = box.Text();
        state_.FindStart = box.SelStart();
        state_.FindLength = box.SelLength();
        std::int32_t a = state_.FindStart;
        std::int32_t b = a + state_.FindLength;
        const std::string& term = state_.SearchText;
        const std::string& replacement = state_.ReplaceText;
        const auto delta =
            static_cast<std::int32_t>(replacement.size()) - static_cast<std::int32_t>(term.size());
        const int options = state_.FindOptions;
        OutOfSight hidden(box);
        if (!boxes.selectionOnly) {
            std::int32_t p = 0;
            while ((p = box.Find(term, p, -1, options)) >= 0) {
                ++count;
                box.SetSelText(replacement);
                if (p < a) {
                    a += delta;
                    b += delta;
                } else if (p < b) {
                    b += delta;
                }
                p = p + delta + 1;
            }
        } else {
            std::int32_t p = box.SelStart();
            while ((p = box.Find(term, p, b, options)) >= 0) {
                ++count;
                box.SetSelText(replacement);
                p = p + delta + 1;
                b += delta;
            }
        }
        box.Select(a, b - a);
    }
    std::string told = std::string(kSearched) + " ";
    if (count == 0)
        told += "Der Suchbegriff wurde nicht gefunden.";
    else if (count == 1)
        told += "Es wurde eine Ersetzung vorgenommen.";
    else
        told += "Es wurden " + std::to_string(count) + " Begriffe ersetzt.";
    say(told);
    return count;
}

void FindReplace::UndoReplaceAll(TextControl& box) {
    {
        OutOfSight hidden(box);
        box.SetText(state_.UndoText);
        box.Select(state_.FindStart, state_.FindLength);
    }
}

}  // namespace korvex
