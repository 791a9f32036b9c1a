#pragma once

#include <memory>
#include <utility>

#include "platform/sound/effects/WavesReverbSettings.h"

namespace lyrebrook {

/// The program's handle on the reverb of one buffer. Lives on the program's thread and shares the settings with the
/// reverb that the card's thread plays, so it may outlive it; what is set reaches the sound at the card's next block.
class DirectSoundFXWavesReverb8 {
  public:
    explicit DirectSoundFXWavesReverb8(std::shared_ptr<WavesReverbSettings> settings)
        : settings_(std::move(settings)) {}

    /// RuntimeError `invalidProcedureCall` when a value is outside its range; then nothing changes.
    void SetAllParameters(const DSFXWAVESREVERB& record) { settings_->store(record); }
    DSFXWAVESREVERB GetAllParameters() const noexcept { return settings_->load(); }

  private:
    std::shared_ptr<WavesReverbSettings> settings_;
};

}  // namespace lyrebrook
