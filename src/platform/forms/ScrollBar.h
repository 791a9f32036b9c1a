#pragma once

#include <cstdint>

#include "platform/forms/Control.h"
#include "platform/forms/Slider.h"

class QScrollBar;

namespace lyrebrook {

/// A scroll bar of its own. `Scroll` comes while the thumb is dragged; `Change` when it is let go elsewhere, when
/// arrow, trough, key or wheel moves it, and when code sets another value. `Max` may lie below `Min`: the bar then runs
/// downwards.
class ScrollBar final : public Control {
  public:
    ScrollBar(QWidget* container, Orientation orientation);

    std::int32_t Min() const { return min_; }
    void setMin(std::int32_t min);
    std::int32_t Max() const { return max_; }
    void setMax(std::int32_t max);
    void setSmallChange(std::int32_t change);
    void setLargeChange(std::int32_t change);
    std::int32_t Value() const;
    void setValue(std::int32_t value);

    Event<> Change;
    Event<> Scroll;

  protected:
    bool filter(QEvent& event) override;

  private:
    QScrollBar& bar() const;
    void applyRange();

    std::int32_t min_ = 0;
    std::int32_t max_ = 32767;
    std::int32_t pressedAt_ = 0;
};

}  // namespace lyrebrook
