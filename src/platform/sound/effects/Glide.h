#pragma once

#include <cstddef>

namespace lyrebrook {

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

}  // namespace lyrebrook
