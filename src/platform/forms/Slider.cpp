#include "platform/forms/Slider.h"

#include <QSignalBlocker>

#include "platform/forms/Boundary.h"
#include "platform/forms/SliderView.h"

namespace lyrebrook {
namespace {

SliderView* newView(QWidget* container, Orientation orientation) {
    if (orientation == Orientation::horizontal) return new SliderView(container, Qt::Horizontal);
    auto* view = new SliderView(container, Qt::Vertical);
    view->setInvertedAppearance(true);  // the minimum is at the top, and keys and wheel follow what the eye sees
    view->setInvertedControls(true);
    return view;
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

std::int32_t Slider::Min() const {
    return view().minimum();
}

void Slider::setMin(std::int32_t min) {
    const QSignalBlocker noSignal(widget());
    view().setMinimum(min);
}

std::int32_t Slider::Max() const {
    return view().maximum();
}

void Slider::setMax(std::int32_t max) {
    const QSignalBlocker noSignal(widget());
    view().setMaximum(max);
}

void Slider::setSmallChange(std::int32_t change) {
    view().setSingleStep(change);
}

void Slider::setLargeChange(std::int32_t change) {
    view().setPageStep(change);
}

std::int32_t Slider::TickFrequency() const {
    return view().tickInterval();
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
