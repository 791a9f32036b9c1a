#pragma once

#include <memory>
#include <span>

#include "platform/sound/MappedFile.h"
#include "platform/sound/SoundFormat.h"
#include "platform/sound/SoundMemory.h"

namespace lyrebrook {

/// The frames of a sound: in memory, or a mapped track file whose pages are copied when written. Shared between the
/// program's object and what still plays of it. Frames are written on the program's thread only, and only while the
/// card's thread can't be reading them.
class SoundData {
  public:
    explicit SoundData(SoundMemory memory);
    SoundData(std::unique_ptr<MappedFile> file, std::size_t offsetBytes, Frames length);

    std::span<StereoFrame> frames() { return frames_; }
    std::span<const StereoFrame> frames() const { return frames_; }
    Frames length() const { return static_cast<Frames>(frames_.size()); }

    /// Brings the next seconds of a mapped file into memory, so that the card's thread doesn't wait for a disk.
    void touchAhead(Frames from) noexcept;

  private:
    void touch(Frames from, Frames to) noexcept;

    SoundMemory memory_;
    std::unique_ptr<MappedFile> file_;
    std::span<StereoFrame> frames_;
    Frames touchedFrom_ = 0;
    Frames touchedTo_ = 0;
};

}  // namespace lyrebrook
