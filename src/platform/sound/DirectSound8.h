#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>

#include "platform/sound/BufferDescriptions.h"
#include "platform/sound/DirectSoundSecondaryBuffer8.h"

namespace lyrebrook {

/// Makes sound buffers on the process's engine. The program's thread only; its buffers may outlive it.
class DirectSound8 {
  public:
    explicit DirectSound8(std::shared_ptr<SoundEngine> engine);

    /// The device is never taken away from other programs, so there is nothing to grant at any level (1 to 4).
    void SetCooperativeLevel(std::int64_t hwnd, std::int32_t level);

    /// Silence of `lBufferBytes`, made up to a whole frame. RuntimeError for another format, a negative size, or when
    /// memory is short.
    std::unique_ptr<DirectSoundSecondaryBuffer8> CreateSoundBuffer(const DSBUFFERDESC& description);

    /// The sound of a wave file: its size comes from the file, and another format is converted to the one format.
    /// RuntimeError when the file can't be read as sound.
    std::unique_ptr<DirectSoundSecondaryBuffer8> CreateSoundBufferFromFile(const std::filesystem::path& path,
                                                                           const DSBUFFERDESC& description);

  private:
    std::shared_ptr<SoundEngine> engine_;
};

}  // namespace lyrebrook
