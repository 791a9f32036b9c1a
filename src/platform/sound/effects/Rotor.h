#pragma once

#include <numbers>

#include "platform/sound/SoundFormat.h"
#include "platform/sound/effects/Glide.h"
#include "platform/sound/effects/ReverbSlice.h"

namespace lyrebrook {

/// Turns the sound of two lines into each other, some turns in ten seconds. It keeps the energy, so the decay stays
/// what it was, but no resonance stays at its place long enough to ring. The card's thread only.
class Rotor {
  public:
    explicit Rotor(float turnsPerSecond) noexcept
        : anglePerFrame_(2.0F * std::numbers::pi_v<float> * turnsPerSecond / static_cast<float>(framesPerSecond)) {}

    void turn(SliceChannel& one, SliceChannel& other, std::size_t frames) noexcept {
        const float angle = anglePerFrame_ * static_cast<float>(frames);
        const float small = 1.0F - 0.5F * angle * angle;
        // One step of Newton's keeps the length at 1 against the roundings of hours.
        const float correction = 1.5F - 0.5F * (cosine_ * cosine_ + sine_ * sine_);
        const float cosine = correction * (cosine_ * small - sine_ * angle);
        const float sine = correction * (sine_ * small + cosine_ * angle);
        const Ramp c = Ramp::between(cosine_, cosine, frames);
        const Ramp s = Ramp::between(sine_, sine, frames);
        for (std::size_t t = 0; t < frames; ++t) {
            const float x = one[t];
            const float y = other[t];
            one[t] = c.at(t) * x - s.at(t) * y;
            other[t] = s.at(t) * x + c.at(t) * y;
        }
        cosine_ = cosine;
        sine_ = sine;
    }

  private:
    float anglePerFrame_;
    float cosine_ = 1.0F;
    float sine_ = 0.0F;
};

}  // namespace lyrebrook
