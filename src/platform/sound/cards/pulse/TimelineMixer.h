#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "platform/sound/EngineUnit.h"
#include "platform/sound/SoundCard.h"

namespace lyrebrook {

/// Pulls the engine's timeline and makes one sound of its buses. Used on the card's thread.
class TimelineMixer {
  public:
    /// The client outlives all calls.
    void begin(SoundCardClient& client) { client_ = &client; }

    /// Fills `frames` with the next of the timeline.
    void mix(std::span<StereoFrame> frames) noexcept;

    /// Lets the timeline go on without being heard.
    void drop(Frames frames) noexcept;

    /// Whether what is mixed is captured too, frame for frame, instead of sound from an input.
    void captureOwnSound(bool capture) { capturesOwn_ = capture; }

    /// Index of the next frame to be mixed.
    Frames mixed() const { return mixed_; }

  private:
    void mixBlock(std::span<StereoFrame> frames) noexcept;

    SoundCardClient* client_ = nullptr;
    Frames mixed_ = 0;
    bool capturesOwn_ = false;
    alignas(32) std::array<float, 2 * mixBlockFrames> wave_{};
    alignas(32) std::array<float, 2 * mixBlockFrames> softwareSynth_{};
    std::array<StereoFrame, mixBlockFrames> dropped_{};
};

}  // namespace lyrebrook
