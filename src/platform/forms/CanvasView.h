#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>
#include <functional>

namespace lyrebrook {

/// What a picture box shows, from the back: a colour, a painting, lines drawn by code, a border.
class CanvasView final : public QWidget {
  public:
    explicit CanvasView(QWidget* container);

    void setBackground(const QColor& colour);
    void setPainting(std::function<void(QPainter&, const QRectF&)> painting);
    void setBorder(bool border);

    /// From one place to another, in logical pixels, `thickness` pixels wide. Stays until a new size.
    void drawLine(const QLineF& line, double thickness, const QColor& colour);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    bool fillRow(const QLineF& line, double thickness, const QColor& colour);

    QColor background_;
    std::function<void(QPainter&, const QRectF&)> painting_;
    QImage lines_;
    bool border_ = false;
};

}  // namespace lyrebrook
