#include "platform/music/MidiSource.h"

#include "platform/sound/SoundFormat.h"

#include <algorithm>
#include <cmath>

namespace lyrebrook {
namespace {

constexpr double blockSeconds = static_cast<double>(Synthesizer::blockFrames) / framesPerSecond;
constexpr float quietLevel = 3.2e-5F;                                      // 90 dB below full scale
constexpr std::size_t quietFramesAtTheEnd = framesPerSecond / 20;          // 50 ms
constexpr std::size_t longestRingOut = std::size_t{15} * framesPerSecond;  // should a voice never stop
constexpr double shortestRound = blockSeconds;                             // of a song that is repeated

bool isQuiet(const Synthesizer::Block& block) {
    return std::all_of(block.begin(), block.end(), [](float sample) { return std::abs(sample) < quietLevel; });
}

}  // namespace

MidiSource::MidiSource(std::shared_ptr<const MidiSong> song, std::unique_ptr<Synthesizer> synthesizer, Playing playing)
    : song_(std::move(song)), synthesizer_(std::move(synthesizer)), playing_(std::move(playing)) {
    hasAhead_ = renderAhead();
}

std::size_t MidiSource::render(std::span<float> interleavedStereo) noexcept {
    std::size_t written = 0;
    while (written < interleavedStereo.size()) {
        if (handedOut_ == block_.size() && !takeBlock()) break;
        const std::size_t count = std::min(interleavedStereo.size() - written, block_.size() - handedOut_);
        std::copy_n(block_.data() + handedOut_, count, interleavedStereo.data() + written);
        handedOut_ += count;
        written += count;
    }
    return written / 2;
}

bool MidiSource::takeBlock() noexcept {
    if (!hasAhead_) return false;
    block_ = ahead_;
    handedOut_ = 0;
    hasAhead_ = renderAhead();
    limiter_.apply(block_, ahead_);
    return true;
}

bool MidiSource::renderAhead() noexcept {
    if (ringingOut_ && hasRungOut()) return false;
    playDueEvents();
    synthesizer_->render(ahead_);
    position_ += blockSeconds * static_cast<double>(playing_.tempo->load(std::memory_order_relaxed));
    return true;
}

void MidiSource::playDueEvents() noexcept {
    const auto& events = song_->events;
    while (!ringingOut_) {
        while (nextEvent_ < events.size() && events[nextEvent_].seconds <= position_) {
            synthesizer_->play(*song_, events[nextEvent_++]);
        }
        if (nextEvent_ < events.size() || position_ < song_->seconds) return;
        finishRound();
    }
}

void MidiSource::finishRound() noexcept {
    synthesizer_->releaseKeys();
    ringingOut_ = playing_.repeats == 0;
    if (ringingOut_) return;
    if (playing_.repeats > 0) --playing_.repeats;
    position_ -= std::max(song_->seconds, shortestRound);
    nextEvent_ = 0;
}

// Voices linger for seconds after they can no longer be heard, so they aren't asked.
bool MidiSource::hasRungOut() noexcept {
    ringOutFrames_ += Synthesizer::blockFrames;
    quietFrames_ = isQuiet(ahead_) ? quietFrames_ + Synthesizer::blockFrames : 0;
    return quietFrames_ >= quietFramesAtTheEnd || ringOutFrames_ > longestRingOut;
}

}  // namespace lyrebrook
