#include "platform/sound/BufferVoice.h"

#include <algorithm>
#include <utility>

namespace lyrebrook {

void BufferVoice::apply(const EngineCommand& command, Frames) noexcept {
    switch (command.verb) {
        case Verb::start:
            start();
            break;
        case Verb::stop:
            stop();
            break;
        case Verb::moveTo:
            cursor_ = command.position;
            break;
        case Verb::setGain:
            targetGain_ = command.gain;
            return;
        case Verb::setData:
            data_ = command.data;
            return;
        case Verb::setEffect:
            effect_ = command.effect;
            tailLeft_ = 0;
            return;
        case Verb::attach:
        case Verb::detach:
            return;
    }
    ticket_ = command.ticket;
    publish();
}

void BufferVoice::start() noexcept {
    startsFresh_ = startsFresh_ || !sounding();
    playing_ = data_->length() > 0;
}

void BufferVoice::stop() noexcept {
    playing_ = false;
    tailLeft_ = 0;
}

void BufferVoice::mix(const MixBlock& block) noexcept {
    if (!sounding()) return;
    // A sound begins at the level it was given; only a change while it sounds glides.
    const GainRamp gain{std::exchange(startsFresh_, false) ? targetGain_ : gain_, targetGain_};
    gain_ = targetGain_;
    const std::span<const StereoFrame> frames = takeFrames(block.frames);
    if (effect_ != nullptr) {
        mixThroughEffect(frames, block, gain);
    } else {
        addFrames(frames, gain, block.buses.wave);
    }
}

/// Moves the cursor and tells it before the frames are mixed: what is told is the cursor of the next frame that an
/// order could still reach.
std::span<const StereoFrame> BufferVoice::takeFrames(std::size_t frames) noexcept {
    if (!playing_) return {};
    const Frames from = cursor_;
    cursor_ = std::min(from + static_cast<Frames>(frames), data_->length());
    const auto taken =
        data_->frames().subspan(static_cast<std::size_t>(from), static_cast<std::size_t>(cursor_ - from));
    if (cursor_ == data_->length()) {
        playing_ = false;
        cursor_ = 0;
    }
    publish();
    return taken;
}

void BufferVoice::mixThroughEffect(std::span<const StereoFrame> frames, const MixBlock& block,
                                   const GainRamp& gain) noexcept {
    toFloats(frames, block.scratch);
    std::ranges::fill(block.scratch.subspan(2 * frames.size()), 0.0F);
    effect_->process(block.scratch);
    addSamples(block.scratch, gain, block.buses.wave);
    if (!frames.empty()) tailLeft_ = playing_ ? 0 : effect_->tailFrames();
    tailLeft_ = std::max<Frames>(0, tailLeft_ - static_cast<Frames>(block.frames - frames.size()));
}

}  // namespace lyrebrook
