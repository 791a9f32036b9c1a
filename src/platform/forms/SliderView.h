#pragma once

#include <QSlider>
#include <functional>

namespace lyrebrook {

/// Qt's slider with tick marks that a style sheet leaves visible, a tip beside the thumb while it is dragged, and a
/// value that screen readers hear as text.
class SliderView final : public QSlider {
  public:
    SliderView(QWidget* container, Qt::Orientation orientation);

    QString valueText() const;

    std::function<QString(int value)> textOf;
    std::function<void(bool over)> released;  ///< the mouse was let go, over the slider or elsewhere

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintTicks(QPainter& painter, TickPosition side) const;
    void showTip(int value);
};

}  // namespace lyrebrook
