#pragma once

#include <cstdint>
#include <memory>

#include "platform/sound/BufferDescriptions.h"
#include "platform/sound/DirectSoundCapture8.h"

namespace lyrebrook {

/// A buffer for a track: pan, volume and effects, in the one format.
DSBUFFERDESC trackBufferDescription(std::int32_t bytes);

/// A capture in the one format. RuntimeError `overflow` when the bytes of so many seconds don't fit.
DSCBUFFERDESC captureDescription(float seconds);

/// The small looping capture that feeds the level bars while nothing is recorded, running.
std::unique_ptr<DirectSoundCaptureBuffer8> startMeterCapture(DirectSoundCapture8& capture);

}  // namespace lyrebrook
