#pragma once

#include <array>
#include <cstddef>

#include "platform/sound/effects/AbsorptionBank.h"
#include "platform/sound/effects/DelayLine.h"
#include "platform/sound/effects/ReverbSlice.h"
#include "platform/sound/effects/Rotor.h"

namespace lyrebrook {

/// What makes the reverberation: all-pass delays smear each channel, then eight delay lines feed each other through a
/// mixing that keeps the energy, and lose per round what the decay asks for. All memory is reserved when it is made;
/// the rest is for the card's thread. It falls asleep when nothing louder than -100 dBFS is left in it, and costs
/// nothing then.
class ReverbNetwork {
  public:
    ReverbNetwork();

    void setDecay(float milliseconds, float highRatio, Change change) noexcept;

    /// Replaces the sound by its reverberation.
    void process(StereoSlice& slice) noexcept;

    bool silent() const noexcept { return asleep_; }
    void clear() noexcept;

    /// Factor that makes the reverberation of a lasting sound about as loud as the sound.
    static float unityLevel(float milliseconds) noexcept;

    /// No sound of full scale rings longer than this.
    static std::size_t longestRing(float milliseconds) noexcept;

  private:
    static constexpr std::size_t diffusers = 4;

    void diffuse(StereoSlice& slice) noexcept;
    void mix(LineSlices& lines, StereoSlice& slice) noexcept;
    void watch(bool loud, std::size_t frames) noexcept;

    std::array<DelayLine, diffusers> diffuseLeft_;
    std::array<DelayLine, diffusers> diffuseRight_;
    std::array<DelayLine, reverbLines> lines_;
    AbsorptionBank absorption_;
    std::array<Rotor, reverbLines / 2> rotors_;
    std::size_t quietFrames_ = 0;
    bool asleep_ = true;
};

}  // namespace lyrebrook
