#pragma once

#include <cstdlib>
#include <memory>
#include <span>

#include "platform/sound/SoundFormat.h"

namespace lyrebrook {

/// Silence of a length, to be written over. All of it has been touched, so that the card's thread never waits for a
/// page of it, and where the system has large pages it lies in those: minutes of sound are then taken and given back
/// in a few milliseconds. RuntimeError `outOfMemory` when there isn't enough.
class SoundMemory {
  public:
    SoundMemory() = default;
    explicit SoundMemory(Frames length);

    std::span<StereoFrame> frames() const { return {frames_.get(), static_cast<std::size_t>(length_)}; }

  private:
    struct Free {
        void operator()(StereoFrame* frames) const { std::free(frames); }
    };

    std::unique_ptr<StereoFrame[], Free> frames_;
    Frames length_ = 0;
};

}  // namespace lyrebrook
