#include "gui/window_arrangement.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace korvex::gui {
namespace {
QList<QMdiSubWindow*> shownWindows(QMdiArea* area) {
    QList<QMdiSubWindow*> windows;
    for (QMdiSubWindow* window : area->subWindowList(QMdiArea::CreationOrder)) {
        if (window->isVisible() && !window->isMinimized()) windows << window;
    }
    return windows;
}
}  // namespace

void placeInHalf(QMdiArea* area, QMdiSubWindow* window, bool right) {
    if (window == nullptr) return;
    if (window->isMinimized() || window->isMaximized()) window->showNormal();
    const QSize inner = area->viewport()->size();
    const int half = inner.width() / 2;
    window->setGeometry(right ? half : 0, 0, half, inner.height());
}

void cascade(QMdiArea* area) {
    area->cascadeSubWindows();
}

void tileOneUnderAnother(QMdiArea* area) {
    const QList<QMdiSubWindow*> windows = shownWindows(area);
    if (windows.isEmpty()) return;
    const QSize inner = area->viewport()->size();
    const int height = inner.height() / static_cast<int>(windows.size());
    int top = 0;
    for (QMdiSubWindow* window : windows) {
        if (window->isMaximized()) window->showNormal();
        window->setGeometry(0, top, inner.width(), height);
        top += height;
    }
}

void arrangeIcons(QMdiArea* area) {
    const QSize inner = area->viewport()->size();
    int left = 0;
    int bottom = inner.height();
    for (QMdiSubWindow* window : area->subWindowList(QMdiArea::CreationOrder)) {
        if (!window->isMinimized()) continue;
        const QSize size = window->size();
        if (left > 0 && left + size.width() > inner.width()) {
            left = 0;
            bottom -= size.height();
        }
        window->move(left, bottom - size.height());
        left += size.width();
    }
}

}  // namespace korvex::gui
