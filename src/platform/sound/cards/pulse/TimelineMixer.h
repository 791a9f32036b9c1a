#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "platform/sound/EngineUnit.h"
#include "platform/sound/SoundCard.h"
#include "platform/sound/cards/CardLines.h"
#include "platform/sound/mixing.h"

namespace lyrebrook {

/// Pulls the engine's timeline and makes one sound of its buses, each at its level; a change of level glides over a
/// block. Used on the card's thread.
class TimelineMixer {
  public:
    /// Both outlive all calls.
    void begin(SoundCardClient& client, const CardLines& levels);

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
    GainRamp glideTo(StereoGain& reached, CardLine bus) const noexcept;

    SoundCardClient* client_ = nullptr;
    const CardLines* levels_ = nullptr;
    StereoGain waveGain_;
    StereoGain synthGain_;
    Frames mixed_ = 0;
    bool capturesOwn_ = false;
    alignas(32) std::array<float, 2 * mixBlockFrames> wave_{};
    alignas(32) std::array<float, 2 * mixBlockFrames> softwareSynth_{};
    alignas(32) std::array<float, 2 * mixBlockFrames> sum_{};
    std::array<StereoFrame, mixBlockFrames> dropped_{};
};

}  // namespace lyrebrook
