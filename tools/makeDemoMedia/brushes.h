#pragma once

#include <QColor>
#include <QPainter>
#include <QPointF>
#include <random>

namespace lyrebrook {

/// The same numbers at every run and with every standard library.
class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}

    double between(double from, double to) {
        return from + (to - from) * static_cast<double>(engine_()) / std::minstd_rand::max();
    }

  private:
    std::minstd_rand engine_;
};

QColor withAlpha(QColor colour, int alpha);

/// A round light that fades to nothing at `radius`.
void paintGlow(QPainter& painter, QPointF centre, double radius, QColor colour);

/// Fills the whole picture from top to bottom.
void paintBackdrop(QPainter& painter, const QGradientStops& stops);

}  // namespace lyrebrook
