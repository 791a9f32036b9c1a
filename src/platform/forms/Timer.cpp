#include "platform/forms/Timer.h"

#include "platform/forms/Boundary.h"

namespace lyrebrook {

Timer::Timer(std::int32_t interval, bool enabled)
    : interval_(interval), enabled_(enabled), timer_(desktop().makeTimer([this] { fromQt([this] { Tick.fire(); }); })) {
    apply();
}

void Timer::setInterval(std::int32_t milliseconds) {
    if (interval_ == milliseconds) return;
    interval_ = milliseconds;
    apply();
}

void Timer::setEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    apply();
}

void Timer::apply() {
    if (enabled_ && interval_ > 0)
        timer_->start(interval_);
    else
        timer_->stop();
}

}  // namespace lyrebrook
