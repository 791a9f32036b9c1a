#include "platform/sound/cards/pulse/StreamPosition.h"

#include <algorithm>

namespace lyrebrook {

void StreamPosition::restart(CardMoment at, double position) {
    origin_ = at;
    seen_ = 0;
    lead_ = position;
}

void StreamPosition::see(CardMoment at, double position) {
    ahead_[seen_ % window] = position - framesIn(at - origin_);
    ++seen_;
    lead_ = median();
}

double StreamPosition::at(CardMoment moment) const {
    return lead_ + framesIn(moment - origin_);
}

double StreamPosition::median() const {
    std::array<double, window> sorted = ahead_;
    const auto end = sorted.begin() + static_cast<std::ptrdiff_t>(std::min(seen_, window));
    const auto middle = sorted.begin() + (end - sorted.begin()) / 2;
    std::nth_element(sorted.begin(), middle, end);
    return *middle;
}

}  // namespace lyrebrook
