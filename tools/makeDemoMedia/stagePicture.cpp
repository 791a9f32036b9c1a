#include <QPainterPath>

#include "brushes.h"
#include "pictures.h"

namespace lyrebrook {
namespace {

constexpr double floorLine = 640;
constexpr QPointF body{600, 520};  // between the two bows of the guitar

void paintCurtain(QPainter& painter) {
    for (int x = 0; x < pictureWidth; x += 75) {
        QLinearGradient fold(x, 0, x + 75, 0);
        fold.setStops({{0, QColor(58, 10, 20)}, {0.45, QColor(134, 24, 38)}, {1, QColor(44, 8, 16)}});
        painter.fillRect(QRectF(x, 0, 75, floorLine), fold);
    }
    QLinearGradient shade(0, 0, 0, floorLine);
    shade.setStops({{0, QColor(10, 2, 6, 210)}, {0.6, QColor(10, 2, 6, 60)}, {1, QColor(10, 2, 6, 150)}});
    painter.fillRect(QRectF(0, 0, pictureWidth, floorLine), shade);
}

void paintFloor(QPainter& painter) {
    QLinearGradient boards(0, floorLine, 0, pictureHeight);
    boards.setStops({{0, QColor(104, 58, 34)}, {1, QColor(44, 22, 16)}});
    painter.fillRect(QRectF(0, floorLine, pictureWidth, pictureHeight - floorLine), boards);
    painter.setPen(QPen(QColor(30, 14, 10, 150), 3));
    for (int x = -1800; x <= 1800; x += 150) {
        painter.drawLine(QPointF(600 + x / 2.0, floorLine), QPointF(600 + x, pictureHeight));
    }
}

void paintBeam(QPainter& painter, QPointF lamp, double foot) {
    QLinearGradient light(lamp, QPointF(foot, 700));
    light.setStops({{0, QColor(255, 232, 180, 190)}, {1, QColor(255, 214, 150, 0)}});
    painter.setPen(Qt::NoPen);
    painter.setBrush(light);
    painter.drawPolygon(
        QPolygonF({lamp + QPointF(-16, 0), lamp + QPointF(16, 0), QPointF(foot + 230, 715), QPointF(foot - 230, 715)}));
    paintGlow(painter, lamp, 90, QColor(255, 246, 220, 255));
}

void paintBulbs(QPainter& painter) {
    QPainterPath wire(QPointF(0, 60));
    wire.quadTo(300, 190, 600, 90);
    wire.quadTo(900, 190, pictureWidth, 60);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(20, 8, 10), 4));
    painter.drawPath(wire);
    for (int i = 1; i < 16; ++i) {
        const QPointF bulb = wire.pointAtPercent(i / 16.0) + QPointF(0, 14);
        paintGlow(painter, bulb, 44, QColor(255, 190, 100, 170));
        painter.setBrush(QColor(255, 236, 190));
        painter.drawEllipse(bulb, 8, 11);
    }
}

// The right half, then its mirror image.
QPainterPath guitarBody() {
    QPainterPath half(QPointF(-1, -150));
    half.lineTo(0, -150);
    half.cubicTo(60, -152, 108, -128, 108, -84);
    half.cubicTo(108, -50, 88, -42, 82, -14);
    half.cubicTo(76, 16, 150, 22, 150, 100);
    half.cubicTo(150, 166, 84, 200, 0, 200);
    half.lineTo(-1, 200);
    half.closeSubpath();
    const QTransform place = QTransform::fromTranslate(body.x(), body.y());
    return place.map(half).united((QTransform::fromScale(-1, 1) * place).map(half));
}

void paintNeck(QPainter& painter) {
    const QColor wood(54, 30, 22);
    painter.fillRect(QRectF(body + QPointF(-19, -400), QSizeF(38, 360)), wood);
    painter.setPen(QPen(QColor(190, 176, 160), 3));
    double fret = -60;
    for (int i = 0; i < 12; ++i, fret -= 18 + 1.6 * i) {
        painter.drawLine(body + QPointF(-19, fret), body + QPointF(19, fret));
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(wood);
    painter.drawRoundedRect(QRectF(body + QPointF(-30, -490), QSizeF(60, 100)), 10, 10);
    painter.setBrush(QColor(226, 214, 196));
    for (const double y : {-472.0, -444.0, -416.0}) {
        painter.drawEllipse(body + QPointF(-38, y), 9, 7);
        painter.drawEllipse(body + QPointF(38, y), 9, 7);
    }
}

void paintGuitar(QPainter& painter) {
    QRadialGradient top(body + QPointF(-30, 60), 230);
    top.setStops({{0, QColor(246, 190, 106)}, {0.6, QColor(212, 128, 56)}, {1, QColor(110, 46, 24)}});
    painter.setBrush(top);
    painter.setPen(QPen(QColor(56, 24, 16), 8));
    painter.drawPath(guitarBody());
    paintNeck(painter);
    painter.setBrush(QColor(40, 18, 14));
    painter.setPen(QPen(QColor(246, 224, 180), 5));
    painter.drawEllipse(body + QPointF(0, 0), 44, 44);
    painter.fillRect(QRectF(body + QPointF(-62, 108), QSizeF(124, 22)), QColor(56, 28, 20));
    painter.setPen(QPen(QColor(250, 240, 220, 210), 1.6));
    for (int string = 0; string < 6; ++string) {
        const double x = -12.5 + 5 * string;
        painter.drawLine(body + QPointF(x, -480), body + QPointF(x, 116));
    }
}

void paintStand(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(10, 4, 4, 120));
    painter.drawEllipse(body + QPointF(0, 232), 220, 22);
    painter.setPen(QPen(QColor(18, 10, 12), 12, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(body + QPointF(-70, 190), body + QPointF(-130, 236));
    painter.drawLine(body + QPointF(70, 190), body + QPointF(130, 236));
    painter.drawLine(body + QPointF(-80, 198), body + QPointF(80, 198));
}

}  // namespace

QImage paintStage() {
    QImage picture(pictureWidth, pictureHeight, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    paintCurtain(painter);
    paintFloor(painter);
    paintBeam(painter, {240, 20}, 560);
    paintBeam(painter, {960, 20}, 640);
    paintBulbs(painter);
    paintGlow(painter, {600, 700}, 330, QColor(255, 206, 140, 70));
    paintStand(painter);
    paintGuitar(painter);
    return picture;
}

}  // namespace lyrebrook
