#pragma once
// The menu bar, built from the command table. One set of menus serves both
// the main window and the source windows: entries that only one of them has
// are shown or hidden as the active window changes. Every entry reports its
// name when chosen.

#include <QHash>
#include <QObject>
#include <QString>
#include <string>
#include <vector>

#include "gui/command_table.h"

class QAction;
class QMenu;
class QMenuBar;

namespace korvex::gui {

class CommandMenus : public QObject {
    Q_OBJECT

  public:
    explicit CommandMenus(QMenuBar* bar);

    // The entry or menu of this name as the source window's menu has it
    // (the main window's where only that one has it); nullptr if unknown.
    QAction* action(const QString& name) const;
    QMenu* menu(const QString& name) const;
    // The caption of a command without "&" and "...", for messages.
    QString plainCaption(const QString& name) const;

    // The source window's full menu, or the main window's with or without mnEdit.
    void showDocumentMenu(bool document, bool mainEditMenu);
    bool documentMenuShown() const { return document_; }

    // The recent files, newest first; up to eight entries below a separator.
    void setRecentFiles(const std::vector<std::string>& paths);

  signals:
    void commandChosen(const QString& name);
    void recentFileChosen(int entry);  // 1 is the newest
    void windowMenuAboutToShow(QMenu* menu);

  private:
    QAction* entry(const MenuRow& row, QMenu* parent);

    struct Entry {
        QAction* action;
        int set;  // MenuSet
    };
    std::vector<Entry> entries_;
    QHash<QString, QAction*> byName_;
    QHash<QString, QMenu*> menus_;
    std::vector<QAction*> recent_;  // the separator, then eight entries
    int recentCount_ = 0;
    bool document_ = true;
    bool mainEditMenu_ = false;
};

}  // namespace korvex::gui
