#include "platform/sound/cards/pulse/StreamPosition.h"

namespace lyrebrook {

void StreamPosition::restart(CardMoment at, double position) {
    origin_ = at;
    ahead_.restart();
    lead_ = position;
}

void StreamPosition::see(CardMoment at, double position) {
    ahead_.see(position - framesIn(at - origin_));
    lead_ = ahead_.value();
}

double StreamPosition::at(CardMoment moment) const {
    return lead_ + framesIn(moment - origin_);
}

}  // namespace lyrebrook
