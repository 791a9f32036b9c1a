#include "platform/sound/effects/Reverb.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "platform/sound/effects/Glide.h"

namespace lyrebrook {
namespace {

float factorOf(float decibels) noexcept {
    return std::pow(10.0F, decibels / 20.0F);
}

}  // namespace

void Reverb::reset() noexcept {
    network_.clear();
    fresh_ = true;
}

Frames Reverb::tailFrames() const noexcept {
    return silent() ? 0 : static_cast<Frames>(ReverbNetwork::longestRing(taken_.fReverbTime));
}

void Reverb::takeSettings() noexcept {
    const DSFXWAVESREVERB record = settings_->load();
    if (!fresh_ && record == taken_) return;
    taken_ = record;
    in_.wanted = factorOf(record.fInGain);
    wet_.wanted = factorOf(record.fReverbMix) * ReverbNetwork::unityLevel(record.fReverbTime);
    network_.setDecay(record.fReverbTime, record.fHighFreqRTRatio, fresh_ ? Change::atOnce : Change::gliding);
    if (fresh_) {
        in_.now = in_.wanted;
        wet_.now = wet_.wanted;
    }
    fresh_ = false;
}

void Reverb::process(std::span<float> interleavedStereo) noexcept {
    takeSettings();
    float* block = interleavedStereo.data();
    for (std::size_t left = interleavedStereo.size() / 2; left > 0;) {
        const std::size_t frames = std::min(left, sliceFrames);
        processSlice(block, frames);
        block += 2 * frames;
        left -= frames;
    }
}

void Reverb::processSlice(float* __restrict sound, std::size_t frames) noexcept {
    StereoSlice wet;
    wet.frames = frames;
    const float step = glideStep(frames);
    const float inStep = (glided(in_.now, in_.wanted, step) - in_.now) / static_cast<float>(frames);
    const float wetStep = (glided(wet_.now, wet_.wanted, step) - wet_.now) / static_cast<float>(frames);
    for (std::size_t t = 0; t < frames; ++t) {
        const float gain = in_.now + inStep * static_cast<float>(static_cast<std::int32_t>(t));
        wet.left[t] = sound[2 * t] *= gain;
        wet.right[t] = sound[2 * t + 1] *= gain;
    }
    network_.process(wet);
    for (std::size_t t = 0; t < frames; ++t) {
        const float gain = wet_.now + wetStep * static_cast<float>(static_cast<std::int32_t>(t));
        sound[2 * t] += gain * wet.left[t];
        sound[2 * t + 1] += gain * wet.right[t];
    }
    in_.now = glided(in_.now, in_.wanted, step);
    wet_.now = glided(wet_.now, wet_.wanted, step);
}

}  // namespace lyrebrook
