#pragma once

#include <array>
#include <cstddef>

#include "platform/sound/cards/pulse/CardTime.h"

namespace lyrebrook {

/// Where a stream of sound stands at any moment, in frames, from where it was seen to stand at some moments before.
/// What was seen jitters by milliseconds, one look in many is far off, and a device's clock runs some millionths beside
/// ours: the median of how far the stream was ahead of our clock stands against all three.
class StreamPosition {
  public:
    /// Forgets what was seen. `position` is taken as known until something is seen.
    void restart(CardMoment at, double position);

    void see(CardMoment at, double position);

    double at(CardMoment moment) const;

    /// Seen often enough to be relied on.
    bool settled() const { return seen_ >= enough; }

  private:
    static constexpr std::size_t window = 31;
    static constexpr std::size_t enough = 5;

    double median() const;

    CardMoment origin_;
    std::array<double, window> ahead_{};
    std::size_t seen_ = 0;
    double lead_ = 0;
};

}  // namespace lyrebrook
