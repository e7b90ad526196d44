#include "gui/edit_commands.h"

#include <QInputDialog>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextEdit>

namespace korvex::gui {
namespace {

// The classic leading-number rule: blanks, then digits; anything else is 0.
long long leadingNumber(const QString& answer) {
    const QString text = answer.trimmed();
    long long value = 0;
    for (QChar c : text) {
        if (!c.isDigit() || c.unicode() > 127) break;
        value = value * 10 + (c.unicode() - '0');
        if (value > 1000000000) break;
    }
    return value;
}

}  // namespace

bool deleteSelectionOrCharacter(QTextEdit* text) {
    if (text->document()->isEmpty()) return false;
    QTextCursor cursor = text->textCursor();
    if (!cursor.hasSelection())
        cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    text->setTextCursor(cursor);
    return text->document()->isEmpty();
}

void goToLineAnswer(QTextEdit* text, const QString& answer) {
    const long long target = leadingNumber(answer) - 1;
    if (target >= 1) {
        QTextCursor cursor(text->document());
        const QTextBlock block = text->document()->findBlockByNumber(static_cast<int>(target));
        if (block.isValid()) {
            cursor.setPosition(block.position());
        } else {
            cursor.movePosition(QTextCursor::End);
        }
        text->setTextCursor(cursor);
    }
    text->setFocus();
}

void askAndGoToLine(QTextEdit* text, int currentLine, QWidget* parent) {
    bool ok = false;
    const QString answer = QInputDialog::getText(
        parent, QStringLiteral("Gehe zu Zeile"), QStringLiteral("Neue Zeilennummer eingeben"),
        QLineEdit::Normal, QString::number(currentLine), &ok);
    goToLineAnswer(text, ok ? answer : QString());
}

}  // namespace korvex::gui
