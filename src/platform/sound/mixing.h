#pragma once

#include <cstdint>
#include <span>

#include "platform/sound/EngineUnit.h"
#include "platform/sound/SoundFormat.h"

namespace lyrebrook {

/// Gain that glides over the length of what is mixed with it; the last frame has `to`.
struct GainRamp {
    StereoGain from;
    StereoGain to;
};

/// Volume and pan in hundredths of a decibel as a gain a side. -10000 is silence, a pan takes off the side it moves
/// away from.
float gainOf(std::int32_t hundredthsOfDecibel) noexcept;
StereoGain gainOf(std::int32_t volume, std::int32_t pan) noexcept;

/// Floats are interleaved stereo with full scale 1.0. Targets are at least as long as what goes into them.
void addFrames(std::span<const StereoFrame> frames, const GainRamp& gain, std::span<float> bus) noexcept;
void addSamples(std::span<const float> samples, const GainRamp& gain, std::span<float> bus) noexcept;
void toFloats(std::span<const StereoFrame> frames, std::span<float> samples) noexcept;

/// Rounds to the nearest and clips; never wraps.
void toFrames(std::span<const float> samples, std::span<StereoFrame> frames) noexcept;

}  // namespace lyrebrook
