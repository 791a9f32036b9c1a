#pragma once

#include "platform/sound/SoundSource.h"
#include "platform/sound/SoundVoice.h"

#include <atomic>
#include <cstdint>
#include <memory>

namespace lyrebrook {

/// A segment being played.
class SegmentSource : public SoundSource {
  public:
    /// The form's thread, some times a second: brings into memory what the card's thread will want next.
    virtual void readAhead() noexcept {}
};

/// How a segment is to be played: -1 repeats is for ever, the tempo may be changed while it plays.
struct Playing {
    std::int32_t repeats = 0;
    std::shared_ptr<const std::atomic<float>> tempo;
};

/// The content of a loaded file. The form's thread only; what its sources read on the card's thread never changes.
class SegmentMusic {
  public:
    virtual ~SegmentMusic() = default;

    virtual SoundBus bus() const = 0;

    /// Whether `makeSource` finds its instruments waiting, loads them, or gives them back.
    virtual bool instrumentsReady() const { return true; }
    virtual void loadInstruments() {}
    virtual void unloadInstruments() {}

    /// Plays from the start.
    virtual std::unique_ptr<SegmentSource> makeSource(const Playing& playing) = 0;
};

}  // namespace lyrebrook
