#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "platform/sound/SoundFormat.h"

namespace lyrebrook {

/// Whether an input can be opened as this: PCM, one or two channels of 8 or 16 bits, at 44100, 22050 or 11025 Hz.
bool isWaveInFormat(const WAVEFORMATEX& format);

/// Makes sound of the one format into sound of another that wave-in knows, each frame out of the mean of those that it
/// stands for. 8 bits are counted from 128.
class WaveInConversion {
  public:
    explicit WaveInConversion(const WAVEFORMATEX& to);

    /// Forgets the frames that weren't enough for one more.
    void restart() { pending_.clear(); }

    std::vector<std::byte> convert(std::span<const StereoFrame> frames);

  private:
    void put(std::span<const StereoFrame> frames, std::vector<std::byte>& sound) const;

    std::size_t framesForOne_;
    bool stereo_;
    bool wide_;
    std::vector<StereoFrame> pending_;
};

}  // namespace lyrebrook
