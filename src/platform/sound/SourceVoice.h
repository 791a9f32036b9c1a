#pragma once

#include <atomic>
#include <memory>

#include "platform/sound/EngineUnit.h"
#include "platform/sound/SoundSource.h"
#include "platform/sound/SoundVoice.h"
#include "platform/sound/mixing.h"

namespace lyrebrook {

/// The sounding side of a `SoundVoice`; owns the source. Lives on the card's thread while attached; `endedTicket` is
/// for the program's thread.
class SourceVoice final : public EngineUnit {
  public:
    SourceVoice(std::unique_ptr<SoundSource> source, SoundBus bus) : source_(std::move(source)), bus_(bus) {}

    void apply(const EngineCommand& command, Frames at) noexcept override;
    void mix(const MixBlock& block) noexcept override;
    void settle(const Progress& progress) noexcept override;

    /// Ticket of the last start whose sound came to its end and could be captured; 0 before the first.
    std::uint32_t endedTicket() const noexcept { return endedTicket_.load(std::memory_order_acquire); }

  private:
    enum class Stage : std::uint8_t { silent, sounding, ending };

    std::unique_ptr<SoundSource> source_;
    SoundBus bus_;
    Stage stage_ = Stage::silent;
    bool startsFresh_ = true;
    Frames end_ = 0;
    StereoGain gain_;
    StereoGain targetGain_;
    std::uint32_t ticket_ = 0;
    std::atomic<std::uint32_t> endedTicket_{0};
};

}  // namespace lyrebrook
