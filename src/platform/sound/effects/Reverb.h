#pragma once

#include <memory>
#include <span>
#include <utility>

#include "platform/sound/SoundEffect.h"
#include "platform/sound/effects/Glide.h"
#include "platform/sound/effects/ReverbNetwork.h"
#include "platform/sound/effects/WavesReverbSettings.h"

namespace lyrebrook {

/// Reverb of one buffer: the sound itself passes at in-gain, the reverb is added to it at the mix. Made, reset and
/// destroyed on the program's thread, `process` and the queries belong to the card's thread. Holds all its memory from
/// the start. New settings are taken at the next block and glided to, so a slider makes no clicks.
class Reverb final : public SoundEffect {
  public:
    explicit Reverb(std::shared_ptr<const WavesReverbSettings> settings) : settings_(std::move(settings)) {}

    void process(std::span<float> interleavedStereo) noexcept override;

    /// From the last loud frame until nothing is left, at the present settings; 0 if nothing rings.
    Frames tailFrames() const noexcept override;

    /// Nothing rings, all that is inside is zero.
    bool silent() const noexcept { return network_.silent(); }

    /// Forgets all sound, and takes the next settings at once. Not while the card's thread may process.
    void reset() noexcept;

  private:
    void takeSettings() noexcept;
    void processSlice(float* interleavedStereo, std::size_t frames) noexcept;

    std::shared_ptr<const WavesReverbSettings> settings_;
    DSFXWAVESREVERB taken_;
    bool fresh_ = true;
    GlidingGain inGain_;
    GlidingGain wetGain_;
    ReverbNetwork network_;
};

}  // namespace lyrebrook
