#include "gui/setup_image.h"

#include <QPainter>

namespace korvex::gui {
namespace {

// A text line of the picture: a grey bar.
void line(QPainter& painter, int left, int top, int width) {
    painter.fillRect(QRect(left, top, width, 2), QColor(90, 90, 90));
}

void frame(QPainter& painter, const QRect& rect) {
    painter.fillRect(rect, Qt::white);
    painter.setPen(QColor(60, 60, 60));
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
    painter.fillRect(QRect(rect.left() + 1, rect.top() + 1, rect.width() - 2, 5),
                     QColor(0, 60, 140));
}

}  // namespace

SetupImage::SetupImage(Subject subject, QWidget* parent) : QWidget(parent), subject_(subject) {
    setObjectName(QStringLiteral("SetupImage"));
    setFixedSize(sizeHint());
}

void SetupImage::setChoice(bool on) {
    on_ = on;
    update();
}

void SetupImage::setWrapAtEdge(bool atEdge) {
    wrapAtEdge_ = atEdge;
    update();
}

void SetupImage::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect area = rect().adjusted(2, 2, -2, -2);
    painter.fillRect(rect(), QColor(128, 128, 128));
    switch (subject_) {
        case Subject::Windows: paintWindows(painter, area); break;
        case Subject::Wrapping: paintWrapping(painter, area); break;
        case Subject::Bookmarks: paintBookmarks(painter, area); break;
    }
}

void SetupImage::paintWindows(QPainter& painter, const QRect& area) const {
    const int count = on_ ? 2 : 1;
    const int width = on_ ? area.width() / 2 : area.width() * 3 / 4;
    for (int i = 0; i < count; ++i) {
        const QRect window(area.left() + i * width, area.top(), width,
                           on_ ? area.height() : area.height() * 3 / 4);
        frame(painter, window);
        for (int y = window.top() + 10; y < window.bottom() - 4; y += 6)
            line(painter, window.left() + 4, y, window.width() - 12);
    }
}

void SetupImage::paintWrapping(QPainter& painter, const QRect& area) const {
    frame(painter, area);
    // Without wrapping the lines run on past the window's edge.
    painter.setClipRect(area.adjusted(1, 6, -1, -1));
    const int left = area.left() + 4;
    const int full = wrapAtEdge_ ? area.width() - 8 : area.width() + 40;
    int y = area.top() + 10;
    for (int paragraph = 0; paragraph < 2; ++paragraph) {
        line(painter, left, y, full);
        y += 6;
        const int indent = on_ ? 14 : 0;
        line(painter, left + indent, y, (wrapAtEdge_ ? area.width() - 8 : 40) - indent);
        y += 10;
    }
}

void SetupImage::paintBookmarks(QPainter& painter, const QRect& area) const {
    frame(painter, area);
    for (int i = 0; i < 6; ++i) {
        const int y = area.top() + 10 + i * 7;
        if (y > area.bottom() - 3) break;
        line(painter, area.left() + 14, y, area.width() - 20);
        if (on_ && (i == 1 || i == 4)) {
            painter.fillRect(QRect(area.left() + 4, y - 3, 2, 7), QColor(40, 40, 40));
            painter.fillRect(QRect(area.left() + 6, y - 3, 5, 4), QColor(200, 0, 0));
        }
    }
}

}  // namespace korvex::gui
