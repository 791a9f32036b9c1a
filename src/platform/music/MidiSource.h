#pragma once

#include "platform/music/PeakLimiter.h"
#include "platform/music/SegmentMusic.h"
#include "platform/music/Synthesizer.h"

#include <memory>

namespace lyrebrook {

/// Plays a MIDI song through a synthesizer of its own. It ends when the last key has rung out and the room is quiet.
/// Nothing on its way to the card's thread is left to be done there for the first time: it is made with a block ready.
class MidiSource final : public SegmentSource {
  public:
    MidiSource(std::shared_ptr<const MidiSong> song, std::unique_ptr<Synthesizer> synthesizer, Playing playing);

    std::size_t render(std::span<float> interleavedStereo) noexcept override;

  private:
    bool takeBlock() noexcept;
    bool renderAhead() noexcept;
    void playDueEvents() noexcept;
    void finishRound() noexcept;
    bool hasRungOut() noexcept;

    std::shared_ptr<const MidiSong> song_;
    std::unique_ptr<Synthesizer> synthesizer_;
    Playing playing_;
    double position_ = 0;  // seconds of the song at its own tempo
    std::size_t nextEvent_ = 0;
    bool ringingOut_ = false;
    std::size_t ringOutFrames_ = 0;
    std::size_t quietFrames_ = 0;
    PeakLimiter limiter_;
    Synthesizer::Block ahead_{};  // what comes after the block that is being handed out
    bool hasAhead_ = false;
    Synthesizer::Block block_{};
    std::size_t handedOut_ = 2 * Synthesizer::blockFrames;  // samples of the block
};

}  // namespace lyrebrook
