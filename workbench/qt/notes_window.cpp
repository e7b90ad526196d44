#include "gui/notes_window.h"

#include <QAction>
#include <QApplication>
#include <QStyle>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextOption>
#include <QToolBar>
#include <QVBoxLayout>

#include "gui/colour_map.h"
#include "gui/qt_text.h"
#include "workbench/colours.h"
#include "workbench/document_format.h"

namespace korvex::gui {

NotesWindow::NotesWindow(const Settings& settings, std::function<void(QTextEdit*)> print,
                         QWidget* parent)
    : QWidget(parent, Qt::Tool) {
    setObjectName(QStringLiteral("NotizFrm"));
    setWindowTitle(QStringLiteral("Notizen"));
    text_ = new QTextEdit(this);
    text_->setObjectName(QStringLiteral("Nrtb"));
    text_->setAcceptRichText(false);
    QPalette palette = text_->palette();
    palette.setColor(QPalette::Base,
                     toQColor(settings.Colours[kDisassemblyBackground], QApplication::palette()));
    text_->setPalette(palette);
    QFont font(fromCp1252(settings.EditorFontName), settings.EditorFontSize,
               settings.EditorFontBold ? QFont::Bold : QFont::Normal, settings.EditorFontItalic);
    text_->setFont(font);
    // The tab stops of a new source window.
    QTextOption option = text_->document()->defaultTextOption();
    QList<QTextOption::Tab> stops;
    for (const std::int32_t twips : ScaledSourceTabs(settings.EditorFontSize))
        stops.append(QTextOption::Tab(twips / 15.0, QTextOption::LeftTab));
    option.setTabs(stops);
    text_->document()->setDefaultTextOption(option);

    auto* bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("Toolbar1"));
    bar->setIconSize(QSize(16, 16));
    const auto add = [&](const QString& icon, const QString& key, const QString& tip,
                         const std::function<void()>& act) {
        QAction* action = bar->addAction(QIcon(icon), key);
        action->setToolTip(tip);
        connect(action, &QAction::triggered, this, act);
        buttons_.append(action);
        return action;
    };
    add(QStringLiteral(":/icons/cut.xpm"), QStringLiteral("Ausschneiden"),
        QStringLiteral("Ausschneiden"), [this] {
            noteUndo();
            text_->cut();
        });
    add(QStringLiteral(":/icons/delete.xpm"), QStringLiteral("Alles löschen"),
        QStringLiteral("Auswahl löschen"), [this] {
            noteUndo();
            text_->textCursor().removeSelectedText();
        });
    add(QStringLiteral(":/icons/copy.xpm"), QStringLiteral("Kopieren"), QStringLiteral("Kopieren"),
        [this] { text_->copy(); });
    add(QStringLiteral(":/icons/paste.xpm"), QStringLiteral("Einfügen"), QStringLiteral("Einfügen"),
        [this] {
            noteUndo();
            text_->paste();
        });
    add(QStringLiteral(":/icons/undo.xpm"), QStringLiteral("Rückgängig"),
        QStringLiteral("Rückgängig"), [this] { undo(); });
    buttons_.append(bar->addSeparator());
    add(QStringLiteral(":/icons/print.xpm"), QStringLiteral("Drucken"), QStringLiteral("Drucken"),
        [this, print] {
            if (print) print(text_);
        });
    buttons_.append(bar->addSeparator());
    QAction* onTop =
        add(QStringLiteral(":/icons/ontop.xpm"), QStringLiteral("Fenster immer sichtbar"),
            QStringLiteral("Fenster im Vordergrund"), [] {});
    onTop->setCheckable(true);
    connect(onTop, &QAction::toggled, this, [this](bool on) {
        const bool shown = isVisible();
        setWindowFlag(Qt::WindowStaysOnTopHint, on);
        if (shown) show();
    });
    add(QStringLiteral(":/icons/close.xpm"),
        QStringLiteral("Schließt das Fenster ohne den Inhalt zu löschen"),
        QStringLiteral("Fenster schließen"), [this] { hide(); });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(text_);
    resize(480, 320);
    connect(text_, &QTextEdit::selectionChanged, this, &NotesWindow::updateButtons);
    connect(text_, &QTextEdit::textChanged, this, &NotesWindow::updateButtons);
    updateButtons();
}

QAction* NotesWindow::button(int number) const {
    return number >= 1 && number <= buttons_.size() ? buttons_[number - 1] : nullptr;
}

void NotesWindow::showNotes() {
    showNormal();
    raise();
    activateWindow();
    text_->setFocus();
}

void NotesWindow::noteUndo() {
    const QTextCursor cursor = text_->textCursor();
    undo_ = Kept{text_->toPlainText(), cursor.selectionStart(),
                 cursor.selectionEnd() - cursor.selectionStart()};
}

void NotesWindow::undo() {
    text_->setPlainText(undo_.text);
    QTextCursor cursor = text_->textCursor();
    cursor.setPosition(std::min(undo_.start, static_cast<int>(undo_.text.size())));
    cursor.setPosition(std::min(undo_.start + undo_.length, static_cast<int>(undo_.text.size())),
                       QTextCursor::KeepAnchor);
    text_->setTextCursor(cursor);
}

void NotesWindow::updateButtons() {
    const bool selection = text_->textCursor().hasSelection();
    for (int number : {1, 2, 3}) button(number)->setEnabled(selection);
    button(7)->setEnabled(!text_->document()->isEmpty());
}

}  // namespace korvex::gui
