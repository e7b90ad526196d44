#pragma once
// Toolbar1: 21 positions, buttons and separators, built from the command
// table. Windows hide buttons by position; the settings keep where the bar
// stands, whether it is flat and whether it shows.

#include <QToolBar>
#include <vector>

#include "workbench/command_visibility.h"
#include "workbench/settings.h"

class QMainWindow;

namespace korvex::gui {

class CommandToolbar : public QToolBar {
    Q_OBJECT

  public:
    explicit CommandToolbar(QMainWindow* window);

    // The action at a position (1 to 21), a separator's included.
    QAction* position(int number) const;
    void showPositions(const CommandVisibility& visibility);

    // Align 1 to 4 is top, bottom, left, right; other values keep the top.
    void applyState(const ToolbarState& state);
    ToolbarState state() const { return state_; }

  signals:
    void commandChosen(const QString& name);

  private:
    QMainWindow* window_;
    std::vector<QAction*> positions_;
    ToolbarState state_ = kToolbarDesignState;
};

}  // namespace korvex::gui
