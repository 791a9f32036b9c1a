#pragma once

#include <QImage>
#include <functional>

#include "platform/forms/Control.h"

class QPainter;
class QRectF;

namespace lyrebrook {

enum class MouseButton : int { none = 0, left = 1, right = 2, middle = 4 };

enum class Fit {
    crop,     ///< own size, from the upper left corner: a bar that is uncovered
    stretch,  ///< the whole box
    contain,  ///< as large as the box allows, in the middle
};

/// Unit of `ScaleWidth`, `ScaleHeight` and `DrawLine`.
enum class ScaleMode { twips = 1, pixels = 3 };

/// A rectangle that holds controls, an image, or lines drawn by code, and that takes the mouse. Shows, from the back:
/// the back colour, the picture or the painting, the lines.
class PictureBox final : public Control {
  public:
    explicit PictureBox(QWidget* container);

    void setPicture(const QImage& picture, Fit fit = Fit::contain);
    /// Painted anew whenever needed, sharp at every scale, in logical pixels.
    void setPainting(std::function<void(QPainter&, const QRectF& area)> painting);
    void setBorder(bool border);

    double ScaleWidth() const;
    double ScaleHeight() const;
    void setScaleMode(ScaleMode mode);
    /// A line one unit thick that stays until `Cls`, or until the box changes its size.
    void DrawLine(double x1, double y1, double x2, double y2, Colour colour);
    void Cls();

    Event<> Click;
    /// Button, shift state (1 Shift, 2 Ctrl, 4 Alt), and the place in twips of this box.
    Event<MouseButton, int, Twips, Twips> MouseDown;
    Event<MouseButton, int, Twips, Twips> MouseMove;
    Event<MouseButton, int, Twips, Twips> MouseUp;

  protected:
    bool filter(QEvent& event) override;
    void applyColours() override;

  private:
    class Canvas;
    Canvas& canvas() const;
    double unit() const { return scaleMode_ == ScaleMode::pixels ? 1.0 : twipsPerPixel; }

    ScaleMode scaleMode_ = ScaleMode::twips;
};

}  // namespace lyrebrook
