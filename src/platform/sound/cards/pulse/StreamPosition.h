#pragma once

#include "platform/sound/cards/pulse/CardTime.h"
#include "platform/sound/cards/pulse/RecentMedian.h"

namespace lyrebrook {

/// Where a stream of sound stands at any moment, in frames, from where it was seen to stand at some moments before. In
/// between it goes by our clock.
class StreamPosition {
  public:
    /// Forgets what was seen. `position` is taken as known until something is seen.
    void restart(CardMoment at, double position);

    void see(CardMoment at, double position);

    double at(CardMoment moment) const;

    /// Seen often enough to be relied on.
    bool settled() const { return ahead_.settled(); }

  private:
    CardMoment origin_;
    RecentMedian ahead_;
    double lead_ = 0;  // of the stream over our clock
};

}  // namespace lyrebrook
