#include "platform/sound/SourceVoice.h"

#include <algorithm>
#include <utility>

namespace lyrebrook {
namespace {

/// An input that stays dead must not keep a song from ending.
constexpr Frames longestWaitForInput = Frames{2} * framesPerSecond;

}  // namespace

void SourceVoice::apply(const EngineCommand& command, Frames) noexcept {
    if (command.verb == Verb::setGain) {
        targetGain_ = command.gain;
    } else if (command.verb == Verb::start) {
        ticket_ = command.ticket;
        startsFresh_ = startsFresh_ || stage_ != Stage::sounding;
        stage_ = Stage::sounding;
    } else if (command.verb == Verb::stop) {
        stage_ = Stage::silent;
    }
}

void SourceVoice::mix(const MixBlock& block) noexcept {
    if (stage_ != Stage::sounding) return;
    const std::size_t frames = std::min(source_->render(block.scratch), block.frames);
    const GainRamp gain{std::exchange(startsFresh_, false) ? targetGain_ : gain_, targetGain_};
    gain_ = targetGain_;
    const auto& bus = bus_ == SoundBus::wave ? block.buses.wave : block.buses.softwareSynth;
    addSamples(block.scratch.first(2 * frames), gain, bus);
    if (frames == block.frames) return;
    stage_ = Stage::ending;
    end_ = block.first + static_cast<Frames>(frames);
}

void SourceVoice::settle(const Progress& progress) noexcept {
    if (stage_ != Stage::ending || progress.sounded < end_) return;
    const bool mayStillBeCaptured = progress.captureRuns && progress.captured < end_;
    if (mayStillBeCaptured && progress.sounded - end_ < longestWaitForInput) return;
    stage_ = Stage::silent;
    endedTicket_.store(ticket_, std::memory_order_release);
}

}  // namespace lyrebrook
