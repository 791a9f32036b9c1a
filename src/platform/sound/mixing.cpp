#include "platform/sound/mixing.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "platform/sound/wideLoops.h"

namespace lyrebrook {
namespace {

constexpr std::int32_t silenceFrom = -10000;
constexpr float fullScale = 32768;

// Frames as the row of samples that they are, which the compiler turns into vector loads.
const std::int16_t* samplesOf(std::span<const StereoFrame> frames) noexcept {
    return frames.empty() ? nullptr : &frames.front().left;
}

template <class Sample>
void addSteady(const Sample* __restrict samples, std::size_t frames, StereoGain gain, float* __restrict bus) noexcept {
    for (std::size_t i = 0; i < 2 * frames; i += 2) {
        bus[i] += static_cast<float>(samples[i]) * gain.left;
        bus[i + 1] += static_cast<float>(samples[i + 1]) * gain.right;
    }
}

template <class Sample>
void addGliding(const Sample* __restrict samples, std::size_t frames, const GainRamp& gain,
                float* __restrict bus) noexcept {
    const float step = 1.0F / static_cast<float>(frames);
    for (std::size_t i = 0; i < frames; ++i) {
        const float part = static_cast<float>(i + 1) * step;
        bus[2 * i] += static_cast<float>(samples[2 * i]) * std::lerp(gain.from.left, gain.to.left, part);
        bus[2 * i + 1] += static_cast<float>(samples[2 * i + 1]) * std::lerp(gain.from.right, gain.to.right, part);
    }
}

template <class Sample>
void add(const Sample* samples, std::size_t frames, const GainRamp& gain, float* bus) noexcept {
    if (gain.from == gain.to) {
        addSteady(samples, frames, gain.to, bus);
    } else {
        addGliding(samples, frames, gain, bus);
    }
}

StereoGain scaled(StereoGain gain, float factor) noexcept {
    return {gain.left * factor, gain.right * factor};
}

// Adding this number leaves the rounded value in the low bits of the sum, which costs one addition and vectorises.
std::int16_t rounded(float clipped) noexcept {
    constexpr float lowBitsAreUnits = 12582912;
    return static_cast<std::int16_t>(std::bit_cast<std::int32_t>(clipped + lowBitsAreUnits));
}

}  // namespace

float gainOf(std::int32_t hundredthsOfDecibel) noexcept {
    if (hundredthsOfDecibel <= silenceFrom) return 0;
    return static_cast<float>(std::pow(10.0, std::min(hundredthsOfDecibel, 0) / 2000.0));
}

StereoGain gainOf(std::int32_t volume, std::int32_t pan) noexcept {
    const float both = gainOf(volume);
    return {both * gainOf(-std::max(pan, 0)), both * gainOf(std::min(pan, 0))};
}

LYREBROOK_WIDE_LOOPS void addFrames(std::span<const StereoFrame> frames, const GainRamp& gain,
                                    std::span<float> bus) noexcept {
    const GainRamp fromInteger{scaled(gain.from, 1 / fullScale), scaled(gain.to, 1 / fullScale)};
    add(samplesOf(frames), frames.size(), fromInteger, bus.data());
}

LYREBROOK_WIDE_LOOPS void addSamples(std::span<const float> samples, const GainRamp& gain,
                                     std::span<float> bus) noexcept {
    add(samples.data(), samples.size() / 2, gain, bus.data());
}

LYREBROOK_WIDE_LOOPS void toFloats(std::span<const StereoFrame> frames, std::span<float> samples) noexcept {
    const std::int16_t* from = samplesOf(frames);
    float* __restrict to = samples.data();
    for (std::size_t i = 0; i < 2 * frames.size(); ++i) to[i] = static_cast<float>(from[i]) * (1 / fullScale);
}

LYREBROOK_WIDE_LOOPS void toFrames(std::span<const float> samples, std::span<StereoFrame> frames) noexcept {
    const float* from = samples.data();
    std::int16_t* __restrict to = frames.empty() ? nullptr : &frames.front().left;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        to[i] = rounded(std::max(-fullScale, std::min(from[i] * fullScale, fullScale - 1)));
    }
}

}  // namespace lyrebrook
