#pragma once
// The edit commands of the menu on the active source window's text, where
// they need more than the text widget's own cut, copy and paste.

#include <QString>

class QTextEdit;
class QWidget;

namespace korvex::gui {

// mnuEDelete: an empty text stays; with no selection the character at the
// caret goes, a line end whole. True when the text is empty afterwards.
bool deleteSelectionOrCharacter(QTextEdit* text);

// Go to line: the answer's leading number is the 1-based line. Answers
// below 2 (1, nothing, not a number) only give the text the focus, so line 1
// isn't reached this way; a number past the end goes to the end of the text.
void goToLineAnswer(QTextEdit* text, const QString& answer);

// Asks "Gehe zu Zeile" with the caret's line offered, then goes there.
void askAndGoToLine(QTextEdit* text, int currentLine, QWidget* parent);

}  // namespace korvex::gui
