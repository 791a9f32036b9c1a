#pragma once

#include <array>
#include <cstddef>

namespace lyrebrook {

/// The reverb works a slice at a time. A slice is shorter than its shortest delay, so within one nothing depends on
/// what the same slice produces and the loops run over many frames at once.
inline constexpr std::size_t sliceFrames = 64;
inline constexpr std::size_t reverbLines = 8;

using SliceChannel = std::array<float, sliceFrames>;

struct StereoSlice {
    alignas(16) SliceChannel left;
    alignas(16) SliceChannel right;
    std::size_t frames = 0;
};

/// One channel for each delay line.
using LineSlices = std::array<SliceChannel, reverbLines>;

/// What has faded below -260 dBFS becomes zero, long before a float loses its normal form and its speed: the sum has no
/// digits left for it. Without a branch, so that loops stay wide; the compiler must not be told to reorder sums.
constexpr float withoutTraces(float sample) noexcept {
    constexpr float anchor = 1e-6F;
    return (sample + anchor) - anchor;
}

}  // namespace lyrebrook
