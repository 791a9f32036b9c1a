#include "platform/forms/SliderView.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCursor>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include "platform/forms/Boundary.h"
#include "platform/forms/Theme.h"

namespace lyrebrook {
namespace {

class AccessibleSlider final : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit AccessibleSlider(SliderView& slider) : QAccessibleWidget(&slider, QAccessible::Slider), slider_(slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text part) const override {
        return part == QAccessible::Value ? slider_.valueText() : QAccessibleWidget::text(part);
    }
    QVariant currentValue() const override { return slider_.value(); }
    void setCurrentValue(const QVariant& value) override { slider_.setValue(value.toInt()); }
    QVariant maximumValue() const override { return slider_.maximum(); }
    QVariant minimumValue() const override { return slider_.minimum(); }
    QVariant minimumStepSize() const override { return slider_.singleStep(); }

  private:
    SliderView& slider_;
};

QAccessibleInterface* makeAccessible(const QString&, QObject* object) {
    auto* slider = dynamic_cast<SliderView*>(object);
    return slider ? new AccessibleSlider(*slider) : nullptr;
}

constexpr int tickLength = 4;
constexpr int thumbLength = 14;  // along the groove, as the style sheet draws it

}  // namespace

SliderView::SliderView(QWidget* container, Qt::Orientation orientation) : QSlider(orientation, container) {
    static const bool installed = (QAccessible::installFactory(makeAccessible), true);
    static_cast<void>(installed);
    connect(this, &QSlider::sliderMoved, this, &SliderView::showTip);
}

QString SliderView::valueText() const {
    return textOf ? textOf(value()) : QString::number(value());
}

void SliderView::mouseReleaseEvent(QMouseEvent* event) {
    QSlider::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton) return;
    const bool over = rect().contains(event->position().toPoint());
    fromQt([this, over] { released(over); });
}

void SliderView::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        painter.setPen(isEnabled() ? theme::quietText : theme::lightOpen);
        for (const TickPosition side : {TicksAbove, TicksBelow})
            if (tickPosition() & side) paintTicks(painter, side);
    }
    QSlider::paintEvent(event);
}

void SliderView::paintTicks(QPainter& painter, TickPosition side) const {
    const bool across = orientation() == Qt::Horizontal;
    const int span = (across ? width() : height()) - thumbLength;
    constexpr int rim = 3;  // where the focus ring goes
    const int start = side == TicksAbove ? rim : (across ? height() : width()) - tickLength - rim;
    const std::int64_t step = std::max(1, tickInterval());
    for (std::int64_t value = minimum(); value <= maximum(); value += step) {
        const int at = thumbLength / 2 +
                       QStyle::sliderPositionFromValue(minimum(), maximum(), static_cast<int>(value), span, false);
        if (across)
            painter.drawLine(at, start, at, start + tickLength - 1);
        else
            painter.drawLine(start, at, start + tickLength - 1, at);
    }
}

void SliderView::showTip(int) {
    if (textOf) QToolTip::showText(QCursor::pos(), valueText(), this);
}

}  // namespace lyrebrook
