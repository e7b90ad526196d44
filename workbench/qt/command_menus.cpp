#include "gui/command_menus.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>

#include "gui/command_table.h"
#include "gui/qt_text.h"
#include "workbench/recent_files.h"

namespace korvex::gui {

CommandMenus::CommandMenus(QMenuBar* bar) : QObject(bar) {
    const std::span<const MenuRow> rows = menuRows();
    QMenu* parents[3] = {nullptr, nullptr, nullptr};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const MenuRow& row = rows[i];
        QMenu* parent = row.depth == 0 ? nullptr : parents[row.depth - 1];
        const bool isMenu =
            row.depth == 0 || (i + 1 < rows.size() && rows[i + 1].depth > row.depth);
        if (!isMenu) {
            entry(row, parent);
            continue;
        }
        const QString name = QString::fromUtf8(row.name);
        auto* menu = new QMenu(QString::fromUtf8(row.caption),
                               row.depth == 0 ? static_cast<QWidget*>(bar) : parent);
        menu->setObjectName(name);
        menu->menuAction()->setObjectName(name);
        if (row.depth == 0) {
            bar->addMenu(menu);
        } else {
            parent->addMenu(menu);
        }
        entries_.push_back({menu->menuAction(), static_cast<int>(row.set)});
        if (!menus_.contains(name) || row.set != MenuSet::Main) menus_[name] = menu;
        parents[row.depth] = menu;
    }

    // The recent files close the file menu.
    QMenu* file = menus_.value(QStringLiteral("mnuFile"));
    for (int i = 0; i <= kRecentFileCount; ++i) {
        QAction* action = i == 0 ? file->addSeparator() : file->addAction(QString());
        action->setObjectName(QString::fromLatin1(kRecentFileName).arg(i));
        action->setVisible(false);
        if (i > 0)
            connect(action, &QAction::triggered, this, [this, i] { emit recentFileChosen(i); });
        recent_.push_back(action);
    }
    QMenu* window = menus_.value(QStringLiteral("mnuWindow"));
    connect(window, &QMenu::aboutToShow, this,
            [this, window] { emit windowMenuAboutToShow(window); });
    showDocumentMenu(true, false);
}

QAction* CommandMenus::entry(const MenuRow& row, QMenu* parent) {
    if (row.name == nullptr) {
        entries_.push_back({parent->addSeparator(), static_cast<int>(row.set)});
        return entries_.back().action;
    }
    const QString name = QString::fromUtf8(row.name);
    // The same command in two menus is one action; a twin with its own
    // caption for the main window is another.
    for (const Entry& known : entries_) {
        if (known.action->objectName() == name && known.set == static_cast<int>(row.set) &&
            known.action->menu() == nullptr) {
            parent->addAction(known.action);
            return known.action;
        }
    }
    auto* action = new QAction(QString::fromUtf8(row.caption), parent);
    action->setObjectName(name);
    if (*row.key != '\0') action->setShortcut(QKeySequence(QString::fromLatin1(row.key)));
    parent->addAction(action);
    connect(action, &QAction::triggered, this, [this, name] { emit commandChosen(name); });
    entries_.push_back({action, static_cast<int>(row.set)});
    if (!byName_.contains(name) || row.set != MenuSet::Main) byName_[name] = action;
    return action;
}

QAction* CommandMenus::action(const QString& name) const {
    if (QAction* action = byName_.value(name)) return action;
    QMenu* menu = menus_.value(name);
    return menu != nullptr ? menu->menuAction() : nullptr;
}

QMenu* CommandMenus::menu(const QString& name) const {
    return menus_.value(name);
}

QString CommandMenus::plainCaption(const QString& name) const {
    QAction* known = action(name);
    if (known == nullptr) return name;
    QString caption = known->text();
    caption.remove(QLatin1Char('&'));
    if (caption.endsWith(QStringLiteral("..."))) caption.chop(3);
    return caption;
}

void CommandMenus::showDocumentMenu(bool document, bool mainEditMenu) {
    document_ = document;
    mainEditMenu_ = mainEditMenu;
    for (const Entry& known : entries_) {
        const auto set = static_cast<MenuSet>(known.set);
        bool visible = set == MenuSet::Both || (set == MenuSet::Document) == document;
        if (known.action->objectName() == QStringLiteral("mnEdit"))
            visible = !document && mainEditMenu;
        known.action->setVisible(visible);
    }
}

void CommandMenus::setRecentFiles(const std::vector<std::string>& paths) {
    recentCount_ = std::min<int>(static_cast<int>(paths.size()), kRecentFileCount);
    recent_[0]->setVisible(recentCount_ > 0);
    for (int i = 1; i <= kRecentFileCount; ++i) {
        QAction* action = recent_[static_cast<std::size_t>(i)];
        if (i <= recentCount_) {
            const QString path = fromCp1252(paths[static_cast<std::size_t>(i - 1)]);
            action->setText(QString(path).replace(QLatin1Char('&'), QStringLiteral("&&")));
            action->setData(path);
        }
        action->setVisible(i <= recentCount_);
    }
}

}  // namespace korvex::gui
