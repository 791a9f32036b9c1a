#include "platform/sound/cards/pulse/TimelineMixer.h"

#include <algorithm>
#include <utility>

#include "platform/sound/RealTimeScope.h"

namespace lyrebrook {

void TimelineMixer::begin(SoundCardClient& client, const CardLines& levels) {
    client_ = &client;
    levels_ = &levels;
    waveGain_ = levels.gain(CardLine::wave);
    synthGain_ = levels.gain(CardLine::softwareSynth);
}

void TimelineMixer::mix(std::span<StereoFrame> frames) noexcept {
    while (!frames.empty()) {
        const std::size_t part = std::min(frames.size(), mixBlockFrames);
        mixBlock(frames.first(part));
        frames = frames.subspan(part);
    }
}

void TimelineMixer::drop(Frames frames) noexcept {
    while (frames > 0) {
        const Frames part = std::min<Frames>(frames, mixBlockFrames);
        mixBlock(std::span{dropped_}.first(static_cast<std::size_t>(part)));
        frames -= part;
    }
}

void TimelineMixer::mixBlock(std::span<StereoFrame> frames) noexcept {
    const RealTimeScope scope;
    const std::size_t samples = 2 * frames.size();
    const auto wave = std::span{wave_}.first(samples);
    const auto softwareSynth = std::span{softwareSynth_}.first(samples);
    const Frames first = client_->mixFrames({wave, softwareSynth});
    const auto sum = std::span{sum_}.first(samples);
    std::ranges::fill(sum, 0.0F);
    addSamples(wave, glideTo(waveGain_, CardLine::wave), sum);
    addSamples(softwareSynth, glideTo(synthGain_, CardLine::softwareSynth), sum);
    toFrames(sum, frames);
    mixed_ = first + static_cast<Frames>(frames.size());
    if (capturesOwn_) client_->framesCaptured(first, frames);
}

GainRamp TimelineMixer::glideTo(StereoGain& reached, CardLine bus) const noexcept {
    const StereoGain next = levels_->gain(bus);
    return {std::exchange(reached, next), next};
}

}  // namespace lyrebrook
