#include "platform/sound/effects/Reverb.h"

#include <algorithm>
#include <cmath>

#include "platform/sound/wideLoops.h"

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
    const Change change = fresh_ ? Change::atOnce : Change::gliding;
    inGain_.set(factorOf(record.fInGain), change);
    wetGain_.set(factorOf(record.fReverbMix) * ReverbNetwork::unityLevel(record.fReverbTime), change);
    network_.setDecay(record.fReverbTime, record.fHighFreqRTRatio, change);
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

LYREBROOK_WIDE_LOOPS void Reverb::processSlice(float* __restrict sound, std::size_t frames) noexcept {
    StereoSlice wet;
    wet.frames = frames;
    const Ramp in = inGain_.advance(frames);
    for (std::size_t t = 0; t < frames; ++t) {
        wet.left[t] = sound[2 * t] *= in.at(t);
        wet.right[t] = sound[2 * t + 1] *= in.at(t);
    }
    network_.process(wet);
    const Ramp level = wetGain_.advance(frames);
    for (std::size_t t = 0; t < frames; ++t) {
        sound[2 * t] += level.at(t) * wet.left[t];
        sound[2 * t + 1] += level.at(t) * wet.right[t];
    }
}

}  // namespace lyrebrook
