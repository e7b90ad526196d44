#include "gui/app_icon.h"

#include <QFont>
#include <QPainter>
#include <QPixmap>

namespace korvex::gui {
namespace {

// The chip of korvex.svg, drawn on a 64-unit square at `size` pixels.
QPixmap chip(int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 64.0, size / 64.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xb0, 0xb4, 0xba));
    for (int pin = 0; pin < 4; ++pin) {
        painter.drawRoundedRect(QRectF(2, 12 + 10 * pin, 10, 4), 1, 1);
        painter.drawRoundedRect(QRectF(52, 12 + 10 * pin, 10, 4), 1, 1);
    }
    painter.setBrush(QColor(0x1f, 0x35, 0x50));
    painter.drawRoundedRect(QRectF(10, 6, 44, 52), 4, 4);
    painter.setBrush(QColor(0x4a, 0x6a, 0x90));
    painter.drawEllipse(QPointF(18, 14), 3, 3);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setBold(true);
    font.setPixelSize(20);
    painter.setFont(font);
    painter.setPen(QColor(0xf0, 0xc0, 0x40));
    painter.drawText(QRectF(10, 24, 44, 24), Qt::AlignCenter, QStringLiteral("51"));
    return pixmap;
}

}  // namespace

QIcon applicationIcon() {
    QIcon icon;
    for (int size : {16, 24, 32, 48, 64, 128}) icon.addPixmap(chip(size));
    return icon;
}

}  // namespace korvex::gui
