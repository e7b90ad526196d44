#include "gui/bookmark_picture.h"

#include <QPainter>
#include <QPixmap>
#include <QPolygon>

namespace korvex::gui {

QImage bookmarkFlag() {
    QImage flag(20, 12, QImage::Format_ARGB32);
    flag.fill(Qt::transparent);
    QPainter painter(&flag);
    painter.setPen(QColor(64, 64, 64));
    painter.drawLine(3, 0, 3, 11);  // the pole
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(200, 0, 0));
    painter.drawPolygon(QPolygon({QPoint(4, 0), QPoint(16, 3), QPoint(4, 7)}));
    return flag;
}

QCursor bookmarkCursor() {
    return QCursor(QPixmap::fromImage(bookmarkFlag()), 3, 11);
}

}  // namespace korvex::gui
