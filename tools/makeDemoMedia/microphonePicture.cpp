#include <QPainterPath>
#include <cmath>
#include <numbers>

#include "brushes.h"
#include "pictures.h"

namespace lyrebrook {
namespace {

constexpr QPointF lamp{600, 330};
constexpr QRectF head{500, 150, 200, 330};

void paintLights(QPainter& painter) {
    Dice dice(7);
    for (int i = 0; i < 34; ++i) {
        const QPointF place{dice.between(0, pictureWidth), dice.between(20, 620)};
        const double radius = dice.between(14, 46);
        const QColor colour = i % 3 == 0 ? QColor(255, 190, 110) : QColor(235, 90, 80);
        painter.setPen(QPen(withAlpha(colour, 60), 2));
        painter.setBrush(withAlpha(colour, static_cast<int>(dice.between(18, 60))));
        painter.drawEllipse(place, radius, radius);
    }
}

// The swell of a phrase: what was just sung, on both sides of the lamp.
void paintWave(QPainter& painter) {
    constexpr int step = 12;
    painter.setBrush(Qt::NoBrush);
    for (int x = step; x < pictureWidth; x += step) {
        const double phrase = std::pow(std::sin(std::numbers::pi * x / pictureWidth), 1.6);
        const double syllable = 0.35 + 0.65 * std::abs(std::sin(x / 61.0) * std::cos(x / 23.0));
        const double height = 6 + 150 * phrase * syllable;
        painter.setPen(QPen(QColor(255, 205, 140, 120), 5, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(x, lamp.y() - height), QPointF(x, lamp.y() + height));
    }
}

void paintLamp(QPainter& painter) {
    paintGlow(painter, lamp, 520, QColor(255, 150, 70, 190));
    painter.setBrush(QColor(255, 214, 150));
    painter.drawEllipse(lamp, 255, 255);
    paintGlow(painter, lamp, 255, QColor(255, 246, 220, 255));
}

void paintStand(QPainter& painter) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(38, 22, 26), 20, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(460, 250, 280, 290), 190 * 16, 160 * 16);
    painter.drawLine(QPointF(600, 540), QPointF(600, pictureHeight));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(38, 22, 26));
    painter.drawRoundedRect(QRectF(574, 530, 52, 70), 12, 12);
}

void paintGrille(QPainter& painter) {
    painter.setPen(QPen(QColor(60, 46, 50), 7));
    for (int row = 0; row < 7; ++row) {
        const double y = head.top() + 34 + 26 * row;
        painter.drawLine(QPointF(head.left(), y), QPointF(head.right(), y));
    }
    painter.setPen(QPen(QColor(60, 46, 50), 10));
    painter.drawLine(QPointF(head.center().x(), head.top()), QPointF(head.center().x(), head.bottom() - 120));
}

void paintHead(QPainter& painter) {
    QLinearGradient chrome(head.topLeft(), head.topRight());
    chrome.setStops({{0, QColor(84, 72, 76)},
                     {0.22, QColor(236, 228, 224)},
                     {0.5, QColor(150, 138, 142)},
                     {0.8, QColor(214, 204, 202)},
                     {1, QColor(66, 54, 58)}});
    QPainterPath outline;
    outline.addRoundedRect(head, 100, 100);
    painter.save();
    painter.setClipPath(outline);
    painter.fillRect(head, chrome);
    paintGrille(painter);
    painter.fillRect(QRectF(head.left(), head.bottom() - 122, head.width(), 34), QColor(150, 26, 40));
    painter.fillRect(QRectF(head.left(), head.bottom() - 88, head.width(), 88), QColor(60, 44, 50, 150));
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(38, 22, 26), 10));
    painter.drawPath(outline);
}

}  // namespace

QImage paintMicrophone() {
    QImage picture(pictureWidth, pictureHeight, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    paintBackdrop(painter, {{0, QColor(46, 10, 20)}, {0.55, QColor(120, 24, 34)}, {1, QColor(36, 8, 16)}});
    paintLights(painter);
    paintWave(painter);
    paintLamp(painter);
    paintStand(painter);
    paintHead(painter);
    return picture;
}

}  // namespace lyrebrook
