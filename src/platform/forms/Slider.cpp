#include "platform/forms/Slider.h"

#include <QSignalBlocker>
#include <algorithm>

#include "platform/forms/Boundary.h"
#include "platform/forms/SliderView.h"

namespace lyrebrook {
namespace {

SliderView* newView(QWidget* container, Orientation orientation) {
    return new SliderView(container, orientation == Orientation::horizontal ? Qt::Horizontal : Qt::Vertical);
}

}  // namespace

Slider::Slider(QWidget* container, Orientation orientation) : Slider(container, orientation, Range{}) {}

Slider::Slider(QWidget* container, Orientation orientation, const Range& range)
    : Control(newView(container, orientation)) {
    setMin(range.Min);
    setMax(range.Max);
    setSmallChange(range.SmallChange);
    setLargeChange(range.LargeChange);
    setTickFrequency(range.TickFrequency);
    setTickStyle(0);
    setValue(range.Value);
    QObject::connect(&view(), &QSlider::valueChanged, [this] {
        fromQt([this] {
            Scroll.fire();
            Change.fire();
        });
    });
    view().released = [this](bool over) {
        if (over) Click.fire();
        MouseUp.fire();
    };
}

SliderView& Slider::view() const {
    return as<SliderView>();
}

void Slider::setMin(std::int32_t min) {
    min_ = min;
    applyRange();
}

void Slider::setMax(std::int32_t max) {
    max_ = max;
    applyRange();
}

void Slider::applyRange() {
    const QSignalBlocker noSignal(widget());
    view().setRange(std::min(min_, max_), std::max(min_, max_));
    const bool minimumAtTop = view().orientation() == Qt::Vertical;  // keys and wheel follow what the eye sees
    view().setInvertedAppearance(minimumAtTop != (max_ < min_));
    view().setInvertedControls(minimumAtTop != (max_ < min_));
}

void Slider::setSmallChange(std::int32_t change) {
    view().setSingleStep(change);
}

void Slider::setLargeChange(std::int32_t change) {
    view().setPageStep(change);
}

void Slider::setTickFrequency(std::int32_t frequency) {
    view().setTickInterval(frequency);
}

void Slider::setTickStyle(int style) {
    tickStyle_ = style;
    switch (style) {
        case 0:
            return view().setTickPosition(QSlider::TicksBelow);
        case 1:
            return view().setTickPosition(QSlider::TicksAbove);
        case 2:
            return view().setTickPosition(QSlider::TicksBothSides);
        default:
            return view().setTickPosition(QSlider::NoTicks);
    }
}

std::int32_t Slider::Value() const {
    return view().value();
}

void Slider::setValue(std::int32_t value) {
    const std::int32_t before = Value();
    {
        const QSignalBlocker noSignal(widget());
        view().setValue(value);
    }
    if (Value() != before) Change.fire();
}

void Slider::setValueText(std::function<QString(std::int32_t value)> valueText) {
    view().textOf = std::move(valueText);
}

}  // namespace lyrebrook
