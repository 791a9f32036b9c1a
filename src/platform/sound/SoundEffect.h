#pragma once

#include <span>

#include "platform/sound/SoundFormat.h"

namespace lyrebrook {

/// An effect that a sound buffer carries, in front of the buffer's volume and pan. Made, configured and destroyed on
/// the program's thread; `process` and `tailFrames` run on the card's thread and must not block, allocate or free.
/// Parameters that change while it works are the effect's own atomics.
class SoundEffect {
  public:
    virtual ~SoundEffect() = default;

    /// Works on interleaved stereo in place, full scale 1.0, at most `mixBlockFrames` at a time.
    virtual void process(std::span<float> interleavedStereo) noexcept = 0;

    /// How long the effect rings on when its buffer has played to the end. A stopped buffer is cut.
    virtual Frames tailFrames() const noexcept = 0;
};

}  // namespace lyrebrook
