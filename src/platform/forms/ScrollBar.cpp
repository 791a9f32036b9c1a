#include "platform/forms/ScrollBar.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>

#include "platform/forms/Boundary.h"

namespace lyrebrook {

ScrollBar::ScrollBar(QWidget* container, Orientation orientation)
    : Control(new QScrollBar(orientation == Orientation::horizontal ? Qt::Horizontal : Qt::Vertical, container)) {
    bar().setFocusPolicy(Qt::StrongFocus);
    applyRange();
    QObject::connect(&bar(), &QScrollBar::sliderPressed, [this] { pressedAt_ = Value(); });
    QObject::connect(&bar(), &QScrollBar::sliderReleased, [this] {
        if (Value() != pressedAt_) fromQt([this] { Change.fire(); });
    });
    QObject::connect(&bar(), &QScrollBar::valueChanged, [this] {
        const Event<>& event = bar().isSliderDown() ? Scroll : Change;
        fromQt([&] { event.fire(); });
    });
}

QScrollBar& ScrollBar::bar() const {
    return as<QScrollBar>();
}

void ScrollBar::setMin(std::int32_t min) {
    min_ = min;
    applyRange();
}

void ScrollBar::setMax(std::int32_t max) {
    max_ = max;
    applyRange();
}

void ScrollBar::setSmallChange(std::int32_t change) {
    bar().setSingleStep(change);
}

void ScrollBar::setLargeChange(std::int32_t change) {
    bar().setPageStep(change);
}

std::int32_t ScrollBar::Value() const {
    return bar().value();
}

void ScrollBar::setValue(std::int32_t value) {
    const std::int32_t before = Value();
    {
        const QSignalBlocker noSignal(widget());
        bar().setValue(value);
    }
    if (Value() != before) Change.fire();
}

/// Qt's own bars go left on the right key.
bool ScrollBar::filter(QEvent& event) {
    if (event.type() != QEvent::KeyPress || bar().orientation() == Qt::Vertical) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    if (key != Qt::Key_Left && key != Qt::Key_Right) return false;
    const bool upwards = (key == Qt::Key_Right) != (max_ < min_);
    bar().triggerAction(upwards ? QAbstractSlider::SliderSingleStepAdd : QAbstractSlider::SliderSingleStepSub);
    return true;
}

void ScrollBar::applyRange() {
    const QSignalBlocker noSignal(widget());
    bar().setRange(std::min(min_, max_), std::max(min_, max_));
    bar().setInvertedAppearance(max_ < min_);
}

}  // namespace lyrebrook
