#include "brushes.h"

#include "pictures.h"

namespace lyrebrook {

QColor withAlpha(QColor colour, int alpha) {
    colour.setAlpha(alpha);
    return colour;
}

void paintGlow(QPainter& painter, QPointF centre, double radius, QColor colour) {
    QRadialGradient light(centre, radius);
    light.setColorAt(0, colour);
    light.setColorAt(0.4, withAlpha(colour, colour.alpha() * 45 / 100));
    light.setColorAt(1, withAlpha(colour, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(light);
    painter.drawEllipse(centre, radius, radius);
}

void paintBackdrop(QPainter& painter, const QGradientStops& stops) {
    QLinearGradient gradient(0, 0, 0, pictureHeight);
    gradient.setStops(stops);
    painter.fillRect(0, 0, pictureWidth, pictureHeight, gradient);
}

}  // namespace lyrebrook
