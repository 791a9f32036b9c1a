#pragma once

#include <cstdint>
#include <functional>

#include "platform/forms/Control.h"

namespace lyrebrook {

class SliderView;

enum class Orientation { horizontal, vertical };

/// The user's hold on a number between `Min` and `Max`. A vertical slider has its `Min` at the top. `Change` comes when
/// the value changes, by the user or from code; `Scroll` only when the user moves it by drag, key or wheel, before
/// `Change`. New limits pull the value in without an event, and a value outside of them is cut. `Max` may lie below
/// `Min`: the slider then runs the other way.
class Slider final : public Control {
  public:
    /// In the order of the product's tables.
    struct Range {
        std::int32_t Min = 0;
        std::int32_t Max = 10;
        std::int32_t SmallChange = 1;
        std::int32_t LargeChange = 5;
        std::int32_t TickFrequency = 1;
        std::int32_t Value = 0;
    };

    explicit Slider(QWidget* container, Orientation orientation = Orientation::horizontal);
    Slider(QWidget* container, Orientation orientation, const Range& range);

    std::int32_t Min() const { return min_; }
    void setMin(std::int32_t min);
    std::int32_t Max() const { return max_; }
    void setMax(std::int32_t max);
    void setSmallChange(std::int32_t change);
    void setLargeChange(std::int32_t change);
    void setTickFrequency(std::int32_t frequency);
    /// 0 bottom or right, 1 top or left, 2 both, 3 none.
    int TickStyle() const { return tickStyle_; }
    void setTickStyle(int style);
    std::int32_t Value() const;
    void setValue(std::int32_t value);

    /// What a screen reader says for a value; also the tip beside the thumb while it is dragged.
    void setValueText(std::function<QString(std::int32_t value)> valueText);

    Event<> Change;
    Event<> Scroll;
    Event<> Click;    ///< the mouse was let go over the slider, wherever the thumb went
    Event<> MouseUp;  ///< the mouse was let go after it was pressed here, wherever it is now; after `Click`

  private:
    SliderView& view() const;
    void applyRange();

    std::int32_t min_ = 0;
    std::int32_t max_ = 0;
    int tickStyle_ = 0;
};

}  // namespace lyrebrook
