#pragma once

#include "platform/forms/Control.h"

namespace lyrebrook {

/// A straight line across or down its container, in twips of the container. It lets the mouse through.
class Line final : public Control {
  public:
    explicit Line(QWidget* container, Colour colour = black, int pixels = 1);

    Twips X1() const { return x1_; }
    Twips X2() const { return x2_; }
    Twips Y1() const { return y1_; }
    Twips Y2() const { return y2_; }
    void setX1(Twips x) { moveEnd(x1_, x); }
    void setX2(Twips x) { moveEnd(x2_, x); }
    void setY1(Twips y) { moveEnd(y1_, y); }
    void setY2(Twips y) { moveEnd(y2_, y); }

  protected:
    void applyColours() override;

  private:
    void moveEnd(Twips& coordinate, Twips value);
    void layOut();

    Twips x1_ = 0, x2_ = 0, y1_ = 0, y2_ = 0;
    int pixels_;
};

}  // namespace lyrebrook
