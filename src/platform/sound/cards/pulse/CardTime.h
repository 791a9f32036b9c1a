#pragma once

#include <chrono>

#include "platform/sound/SoundFormat.h"

namespace lyrebrook {

using CardClock = std::chrono::steady_clock;
using CardMoment = CardClock::time_point;

/// A length of time in frames of the one format, with their fraction.
constexpr double framesIn(CardClock::duration time) {
    return std::chrono::duration<double>(time).count() * framesPerSecond;
}

}  // namespace lyrebrook
