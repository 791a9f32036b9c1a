#pragma once

#include <cstddef>
#include <cstdint>

namespace lyrebrook {

enum class Change : bool { atOnce, gliding };

/// How far a value goes towards the wanted one in `frames` frames, as a part of the way: 20 ms for most of it, quick
/// for a hand on a slider and too slow to click. `frames` is a slice at most.
constexpr float glideStep(std::size_t frames) noexcept {
    constexpr float glideFrames = 882.0F;
    return static_cast<float>(frames) / glideFrames;
}

/// Lands on `wanted` once it is as good as there, so that a value on its way to zero arrives.
constexpr float glided(float value, float wanted, float step) noexcept {
    const float missing = wanted - value;
    constexpr float negligible = 1e-8F;
    return missing < negligible && missing > -negligible ? wanted : value + missing * step;
}

/// A factor over the frames of a slice.
struct Ramp {
    float start;
    float step;

    static constexpr Ramp between(float start, float end, std::size_t frames) noexcept {
        return {start, (end - start) / static_cast<float>(frames)};
    }

    /// By way of 32 bits: processors turn those into floats four at a time.
    constexpr float at(std::size_t frame) const noexcept {
        return start + step * static_cast<float>(static_cast<std::int32_t>(frame));
    }
};

/// A factor that follows its setting without a step.
class GlidingGain {
  public:
    void set(float wanted, Change change) noexcept {
        wanted_ = wanted;
        if (change == Change::atOnce) now_ = wanted;
    }

    /// The factor for the next `frames` frames.
    Ramp advance(std::size_t frames) noexcept {
        const float start = now_;
        now_ = glided(now_, wanted_, glideStep(frames));
        return Ramp::between(start, now_, frames);
    }

  private:
    float now_ = 0.0F;
    float wanted_ = 0.0F;
};

}  // namespace lyrebrook
