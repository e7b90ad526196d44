#include "gui/command_toolbar.h"

#include <QAction>
#include <QMainWindow>
#include <QToolButton>

#include "gui/command_table.h"

namespace korvex::gui {
namespace {
Qt::ToolBarArea areaOf(int align) {
    switch (align) {
        case 2: return Qt::BottomToolBarArea;
        case 3: return Qt::LeftToolBarArea;
        case 4: return Qt::RightToolBarArea;
        default: return Qt::TopToolBarArea;
    }
}
}  // namespace

CommandToolbar::CommandToolbar(QMainWindow* window) : QToolBar(window), window_(window) {
    setObjectName(QStringLiteral("Toolbar1"));
    setWindowTitle(QStringLiteral("Symbolleiste"));
    setMovable(false);
    setFloatable(false);
    setIconSize(QSize(16, 16));
    for (const ToolbarRow& row : toolbarRows()) {
        if (row.name == nullptr) {
            positions_.push_back(addSeparator());
            continue;
        }
        QAction* action = addAction(QIcon(QString::fromLatin1(row.icon)), QString());
        action->setObjectName(QString::fromLatin1(row.name));
        action->setToolTip(QString::fromUtf8(row.toolTip));
        action->setText(QString::fromUtf8(row.toolTip));
        const QString command = QString::fromLatin1(row.command);
        connect(action, &QAction::triggered, this,
                [this, command] { emit commandChosen(command); });
        positions_.push_back(action);
    }
    window_->addToolBar(Qt::TopToolBarArea, this);
}

QAction* CommandToolbar::position(int number) const {
    return number >= 1 && number <= static_cast<int>(positions_.size())
               ? positions_[static_cast<std::size_t>(number - 1)]
               : nullptr;
}

void CommandToolbar::showPositions(const CommandVisibility& visibility) {
    for (int number = 1; number <= kToolbarPositions; ++number)
        position(number)->setVisible(visibility.shown(number));
}

void CommandToolbar::applyState(const ToolbarState& state) {
    state_ = state;
    const Qt::ToolBarArea area = areaOf(state.align);
    if (window_->toolBarArea(this) != area) window_->addToolBar(area, this);
    for (QAction* action : positions_) {
        if (auto* button = qobject_cast<QToolButton*>(widgetForAction(action)))
            button->setAutoRaise(state.flat);
    }
    setVisible(state.visible);
}

}  // namespace korvex::gui
