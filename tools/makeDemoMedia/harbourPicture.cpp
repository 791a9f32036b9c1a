#include <QPainterPath>
#include <cmath>

#include "brushes.h"
#include "pictures.h"

namespace lyrebrook {
namespace {

constexpr double waterLine = 520;
constexpr QPointF sun{820, 430};
constexpr QPointF boat{400, 600};

void paintStars(QPainter& painter) {
    Dice dice(21);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 90; ++i) {
        const double height = dice.between(10, 260);
        painter.setBrush(QColor(255, 244, 225, static_cast<int>(200 * (1 - height / 280))));
        const double size = dice.between(0.8, 2.2);
        painter.drawEllipse(QPointF(dice.between(0, pictureWidth), height), size, size);
    }
}

void paintSun(QPainter& painter) {
    paintGlow(painter, sun, 420, QColor(255, 170, 90, 200));
    painter.setBrush(QColor(255, 226, 170));
    painter.drawEllipse(sun, 70, 70);
}

struct Ridge {
    double base, height, width, phase;
    QColor colour;
};

void paintRidge(QPainter& painter, const Ridge& ridge) {
    QPainterPath path(QPointF(0, waterLine));
    for (int x = 0; x <= pictureWidth; x += 10) {
        const double swing = std::sin(x / ridge.width + ridge.phase) + 0.4 * std::sin(x / (0.37 * ridge.width));
        path.lineTo(x, ridge.base - ridge.height * swing);
    }
    path.lineTo(pictureWidth, waterLine);
    painter.fillPath(path, ridge.colour);
}

void paintVillage(QPainter& painter) {
    Dice dice(5);
    for (int i = 0; i < 26; ++i) {
        const QPointF window{dice.between(20, 430), dice.between(472, 512)};
        painter.fillRect(QRectF(window, QSizeF(5, 7)), QColor(255, 205, 120));
        painter.fillRect(QRectF(window.x(), 2 * waterLine - window.y() + 6, 5, dice.between(14, 46)),
                         QColor(255, 190, 110, 70));
    }
}

void paintWater(QPainter& painter) {
    QLinearGradient water(0, waterLine, 0, pictureHeight);
    water.setStops({{0, QColor(196, 92, 84)}, {0.3, QColor(108, 54, 82)}, {1, QColor(26, 20, 48)}});
    painter.fillRect(QRectF(0, waterLine, pictureWidth, pictureHeight - waterLine), water);
}

// Each wave throws the sun back, the nearer the wider.
void paintSunRoad(QPainter& painter) {
    Dice dice(3);
    for (int i = 0; i < 120; ++i) {
        const double depth = dice.between(0, 1);
        const double y = waterLine + 4 + depth * (pictureHeight - waterLine);
        const double length = dice.between(20, 60 + 120 * depth);
        const double x = sun.x() + dice.between(-1, 1) * (50 + 90 * depth);
        painter.setPen(QPen(QColor(255, 208, 140, static_cast<int>(150 - 90 * depth)), 2 + 3 * depth, Qt::SolidLine,
                            Qt::RoundCap));
        painter.drawLine(QPointF(x - length / 2, y), QPointF(x + length / 2, y));
    }
}

QPainterPath hull() {
    QPainterPath path(boat + QPointF(-130, 0));
    path.quadTo(boat + QPointF(-100, 62), boat + QPointF(-60, 62));
    path.lineTo(boat + QPointF(70, 62));
    path.quadTo(boat + QPointF(120, 50), boat + QPointF(150, -14));
    path.closeSubpath();
    return path;
}

void paintBoat(QPainter& painter) {
    const QColor dark(30, 16, 30);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(16, 10, 28, 120));
    painter.drawEllipse(boat + QPointF(5, 70), 150, 14);
    painter.fillPath(hull(), dark);
    painter.fillRect(QRectF(boat + QPointF(-70, -62), QSizeF(90, 66)), dark);
    painter.fillRect(QRectF(boat + QPointF(-56, -48), QSizeF(24, 24)), QColor(255, 206, 120));
    painter.fillRect(QRectF(boat + QPointF(-20, -48), QSizeF(24, 24)), QColor(255, 206, 120));
    painter.setPen(QPen(dark, 7));
    painter.drawLine(boat + QPointF(50, 4), boat + QPointF(50, -190));
    painter.setPen(QPen(dark, 2.5));
    painter.drawLine(boat + QPointF(50, -186), boat + QPointF(146, -12));
    painter.drawLine(boat + QPointF(50, -186), boat + QPointF(-128, 0));
    paintGlow(painter, boat + QPointF(50, -196), 70, QColor(255, 214, 130, 220));
}

}  // namespace

QImage paintHarbour() {
    QImage picture(pictureWidth, pictureHeight, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    paintBackdrop(painter,
                  {{0, QColor(28, 24, 62)}, {0.3, QColor(98, 48, 92)}, {0.55, QColor(232, 116, 84)}, {1, Qt::black}});
    paintStars(painter);
    paintSun(painter);
    paintRidge(painter, {420, 40, 170, 0.4, QColor(150, 70, 92)});
    paintRidge(painter, {462, 34, 120, 2.6, QColor(104, 46, 78)});
    paintRidge(painter, {498, 24, 210, 4.9, QColor(58, 28, 58)});
    paintWater(painter);
    paintSunRoad(painter);
    paintVillage(painter);
    paintBoat(painter);
    return picture;
}

}  // namespace lyrebrook
