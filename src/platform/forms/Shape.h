#pragma once

#include "platform/forms/Control.h"

namespace lyrebrook {

/// A solid rectangle. It lets the mouse through to what stands behind it.
class Shape final : public Control {
  public:
    explicit Shape(QWidget* container, Colour fill = black);

    Colour FillColor() const { return BackColor(); }
    void setFillColor(Colour colour) { setBackColor(colour); }

  protected:
    void applyColours() override;
};

}  // namespace lyrebrook
