#pragma once
// NotizFrm: a scratch pad beside the sources. Its text lives as long as the
// program; cut, delete and paste can be undone once.

#include <QWidget>
#include <functional>

#include "workbench/settings.h"

class QAction;
class QTextEdit;

namespace korvex::gui {

class NotesWindow : public QWidget {
    Q_OBJECT

  public:
    NotesWindow(const Settings& settings, std::function<void(QTextEdit*)> print,
                QWidget* parent = nullptr);

    QTextEdit* text() const { return text_; }
    QAction* button(int number) const;  // 1 to 10, the separators included
    // Each show: normal state and the focus.
    void showNotes();

  private:
    void noteUndo();
    void undo();
    void updateButtons();

    QTextEdit* text_ = nullptr;
    QList<QAction*> buttons_;
    struct Kept {
        QString text;
        int start = 0;
        int length = 0;
    };
    Kept undo_;
};

}  // namespace korvex::gui
