#include "platform/sound/cards/pulse/TimelineMixer.h"

#include <algorithm>

#include "platform/sound/RealTimeScope.h"
#include "platform/sound/mixing.h"

namespace lyrebrook {

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
    addSamples(softwareSynth, {}, wave);
    toFrames(wave, frames);
    mixed_ = first + static_cast<Frames>(frames.size());
    if (capturesOwn_) client_->framesCaptured(first, frames);
}

}  // namespace lyrebrook
