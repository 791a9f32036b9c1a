#pragma once

#include "platform/sound/EngineUnit.h"
#include "platform/sound/SoundData.h"
#include "platform/sound/SoundEffect.h"
#include "platform/sound/UnitState.h"
#include "platform/sound/mixing.h"

namespace lyrebrook {

/// The playing side of a sound buffer. Lives on the card's thread while attached; `state` is for the program's thread.
/// Neither the sound nor the effect is owned here: the buffer keeps them alive for as long as they are in use.
class BufferVoice final : public EngineUnit {
  public:
    explicit BufferVoice(const SoundData& data) : data_(&data) {}

    void apply(const EngineCommand& command, Frames at) noexcept override;
    void mix(const MixBlock& block) noexcept override;

    Frames cursor() const noexcept override { return cursor_; }

    UnitState state() const noexcept { return published_.load(); }

  private:
    void start() noexcept;
    void stop() noexcept;
    std::span<const StereoFrame> takeFrames(std::size_t frames) noexcept;
    void mixThroughEffect(std::span<const StereoFrame> frames, const MixBlock& block, const GainRamp& gain) noexcept;
    bool sounding() const noexcept { return playing_ || tailLeft_ > 0; }
    void publish() noexcept { published_.store({ticket_, playing_, cursor_}); }

    const SoundData* data_;
    SoundEffect* effect_ = nullptr;
    bool playing_ = false;
    bool startsFresh_ = true;
    Frames cursor_ = 0;
    Frames tailLeft_ = 0;
    StereoGain gain_;
    StereoGain targetGain_;
    std::uint32_t ticket_ = 0;
    PublishedState published_;
};

}  // namespace lyrebrook
