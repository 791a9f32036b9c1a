#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>
#include <functional>

#include "platform/forms/PictureBox.h"

namespace lyrebrook {

/// What a picture box shows, from the back: a colour, a picture or a painting, lines drawn by code, a border.
class CanvasView final : public QWidget {
  public:
    explicit CanvasView(QWidget* container);

    void setBackground(const QColor& colour);
    void setPicture(const QImage& picture, Fit fit);
    void setPainting(std::function<void(QPainter&, const QRectF&)> painting);
    void setBorder(bool border);

    /// From one place to another, in logical pixels, `thickness` pixels wide. Stays until `clear` or a new size.
    void drawLine(const QLineF& line, double thickness, const QColor& colour);
    void clear();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QRectF pictureArea() const;
    bool fillRow(const QLineF& line, double thickness, const QColor& colour);

    QColor background_;
    QImage picture_;
    Fit fit_ = Fit::contain;
    std::function<void(QPainter&, const QRectF&)> painting_;
    QImage lines_;
    bool border_ = false;
};

}  // namespace lyrebrook
