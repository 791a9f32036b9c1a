#pragma once

#include <QLineF>
#include <functional>

#include "platform/forms/Control.h"

class QMouseEvent;
class QPainter;
class QRectF;

namespace lyrebrook {

class CanvasView;

enum class MouseButton : int { none = 0, left = 1, right = 2, middle = 4 };

/// Unit of `ScaleWidth`, `ScaleHeight` and `DrawLine`.
enum class ScaleMode { twips = 1, pixels = 3 };

/// A rectangle that holds controls, a painting, or lines drawn by code, and that takes the mouse. Shows, from the back:
/// the back colour, the painting, the lines.
class PictureBox final : public Control {
  public:
    explicit PictureBox(QWidget* container);

    /// Painted anew whenever needed, sharp at every scale, in logical pixels.
    void setPainting(std::function<void(QPainter&, const QRectF& area)> painting);
    void setBorder(bool border);

    double ScaleWidth() const;
    double ScaleHeight() const;
    void setScaleMode(ScaleMode mode);
    /// A line one unit thick, its rows and columns counted from the upper left, that stays until the box changes its
    /// size.
    void DrawLine(const QLineF& line, Colour colour);

    /// Button, shift state (1 Shift, 2 Ctrl, 4 Alt), and the place in twips of this box.
    using MouseEvent = Event<MouseButton, int, Twips, Twips>;

    Event<> Click;
    MouseEvent MouseDown;
    MouseEvent MouseMove;  ///< also without a button
    MouseEvent MouseUp;

  protected:
    bool filter(QEvent& event) override;
    void applyColours() override;

  private:
    CanvasView& canvas() const;
    /// Units to a pixel.
    double unit() const { return scaleMode_ == ScaleMode::pixels ? 1.0 : twipsPerPixel; }
    void tell(const MouseEvent& told, const QMouseEvent& mouse, Qt::MouseButtons buttons);

    ScaleMode scaleMode_ = ScaleMode::twips;
    bool pressed_ = false;
};

}  // namespace lyrebrook
