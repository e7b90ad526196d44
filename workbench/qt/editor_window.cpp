#include "gui/editor_window.h"

#include <QTextBlock>
#include <QTextEdit>
#include <QVBoxLayout>

#include "gui/qt_text.h"

namespace korvex::gui {

// A plain stand-in until the editor logic is bound: text in, text out, the
// signals the main window listens to.
EditorWindow::EditorWindow(EditorFlags& flags, const Settings& settings, QWidget* parent)
    : QWidget(parent), flags_(flags) {
    setObjectName(QStringLiteral("frmNotePad"));
    text_ = new QTextEdit(this);
    text_->setObjectName(QStringLiteral("RichTextBox1"));
    text_->setAcceptRichText(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(text_);
    applySettings(settings);
    connect(text_, &QTextEdit::textChanged, this, [this] {
        if (!flags_.SuspendChange) emit textEdited();
    });
    connect(text_, &QTextEdit::cursorPositionChanged, this, [this] {
        if (!flags_.SuspendSelChange) emit selectionTouched();
        emit caretStateChanged();
    });
}

EditorWindow::~EditorWindow() = default;

QTextEdit* EditorWindow::textEdit() const {
    return text_;
}

void EditorWindow::setSourceText(const std::string& cp1252) {
    const bool suspended = flags_.SuspendChange;
    flags_.SuspendChange = true;
    QString text = fromCp1252(cp1252);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text_->setPlainText(text);
    flags_.SuspendChange = suspended;
}

std::string EditorWindow::sourceText() const {
    QString text = text_->toPlainText();
    text.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    return toCp1252(text);
}

void EditorWindow::applySettings(const Settings&) {}

void EditorWindow::removeBookmarks() {}

void EditorWindow::useDisassemblyTabs() {}

int EditorWindow::caretLine() const {
    return text_->textCursor().blockNumber() + 1;
}

bool EditorWindow::overwriteMode() const {
    return text_->overwriteMode();
}

}  // namespace korvex::gui
