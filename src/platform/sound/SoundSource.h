#pragma once

#include <cstddef>
#include <span>

namespace lyrebrook {

/// Anything that makes sound as it goes, such as a synthesizer. `render` runs on the card's thread: it must not block,
/// allocate, free or open files. Parameters that change while it sounds are the source's own atomics.
class SoundSource {
  public:
    virtual ~SoundSource() = default;

    /// Overwrites `interleavedStereo` (full scale 1.0) from its start and returns the frames written. Fewer than were
    /// asked for means that the sound has ended; it is then not asked again until its voice is started anew.
    virtual std::size_t render(std::span<float> interleavedStereo) noexcept = 0;
};

}  // namespace lyrebrook
