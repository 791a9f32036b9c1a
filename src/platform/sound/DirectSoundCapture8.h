#pragma once

#include <memory>

#include "platform/sound/BufferDescriptions.h"
#include "platform/sound/DirectSoundCaptureBuffer8.h"

namespace lyrebrook {

/// Makes capture buffers on the process's engine. The program's thread only; its buffers may outlive it.
class DirectSoundCapture8 {
  public:
    explicit DirectSoundCapture8(std::shared_ptr<SoundEngine> engine);

    /// `lBufferBytes` rounded down to a frame. RuntimeError for another format, a negative size, or when memory is
    /// short. The card's input stays open as long as any capture buffer exists.
    std::unique_ptr<DirectSoundCaptureBuffer8> CreateCaptureBuffer(const DSCBUFFERDESC& description);

  private:
    std::shared_ptr<SoundEngine> engine_;
};

}  // namespace lyrebrook
