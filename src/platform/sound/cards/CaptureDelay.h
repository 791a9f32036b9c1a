#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/sound/SoundCard.h"

namespace lyrebrook {

/// Holds captured frames back by a fixed latency, as a real card does, and marks those that were lost on the way. Used
/// on the card's thread; memory is taken when it is made.
class CaptureDelay {
  public:
    explicit CaptureDelay(Frames latency);

    /// At most `mixBlockFrames` at a time, with consecutive indices from 0 on.
    void put(std::span<const StereoFrame> frames, bool lost) noexcept;

    /// Hands over all that has waited long enough, without the lost frames.
    void deliver(SoundCardClient& client) noexcept;

  private:
    struct Slot {
        StereoFrame frame;
        bool lost = true;
    };

    std::size_t collect(Frames end) noexcept;
    Slot& slot(Frames index) noexcept;

    Frames latency_;
    std::vector<Slot> ring_;
    std::vector<StereoFrame> outgoing_;
    Frames put_ = 0;
    Frames delivered_ = 0;
};

}  // namespace lyrebrook
