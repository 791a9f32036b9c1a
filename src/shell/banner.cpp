#include "shell/banner.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <numbers>

#include "platform/forms/Theme.h"

namespace lyrebrook {
namespace {

constexpr int strings = 5;

/// The lower a string lies, the less it swings.
QPainterPath stringPath(const QRectF& area, int string) {
    const double middle = area.height() * (0.66 + 0.055 * string);
    const double swing = area.height() * 0.08 * (strings - string) / strings;
    QPainterPath path(QPointF(0, middle));
    for (int x = 2; x <= area.width(); x += 2) {
        path.lineTo(x, middle + swing * std::sin(2 * std::numbers::pi * x / area.width()));
    }
    return path;
}

}  // namespace

void paintBanner(QPainter& painter, const QRectF& area) {
    painter.fillRect(area, theme::well);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int string = 0; string < strings; ++string) {
        QColor colour = theme::accent;
        colour.setAlphaF(static_cast<float>(0.9 - 0.17 * string));
        painter.setPen(QPen(colour, 1.6));
        painter.drawPath(stringPath(area, string));
    }
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(area.height() * 0.34));
    font.setWeight(QFont::Black);
    painter.setFont(font);
    painter.setPen(theme::text);
    painter.drawText(area.adjusted(0, 0, 0, -area.height() * 0.38), Qt::AlignCenter, QStringLiteral("Lyrebrook"));
}

}  // namespace lyrebrook
