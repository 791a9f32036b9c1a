#include "recorder/transportIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include "platform/forms/Theme.h"

namespace lyrebrook {
namespace {

constexpr double side = 16;  // of the square that the signs are drawn in

QIcon drawn(const QPainterPath& sign, const QColor& colour) {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 96}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size / side, size / side);
        painter.fillPath(sign, colour);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

}  // namespace

QIcon recordIcon() {
    QPainterPath dot;
    dot.addEllipse(QRectF(2, 2, 12, 12));
    return drawn(dot, theme::danger);
}

QIcon stopIcon() {
    QPainterPath square;
    square.addRoundedRect(QRectF(3, 3, 10, 10), 1, 1);
    return drawn(square, theme::text);
}

QIcon playIcon() {
    QPainterPath triangle;
    triangle.addPolygon(QPolygonF({{4, 2}, {14, 8}, {4, 14}, {4, 2}}));
    return drawn(triangle, theme::lightDone);
}

}  // namespace lyrebrook
