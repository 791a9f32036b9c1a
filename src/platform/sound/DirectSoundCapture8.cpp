#include "platform/sound/DirectSoundCapture8.h"

#include "platform/sound/bufferChecks.h"

namespace lyrebrook {

DirectSoundCapture8::DirectSoundCapture8(std::shared_ptr<SoundEngine> engine) : engine_(std::move(engine)) {}

std::unique_ptr<DirectSoundCaptureBuffer8> DirectSoundCapture8::CreateCaptureBuffer(const DSCBUFFERDESC& description) {
    requireTrackFormat(description.fxFormat);
    const Frames length = wholeFrames(requireSize(description.lBufferBytes));
    return std::make_unique<DirectSoundCaptureBuffer8>(engine_, length);
}

}  // namespace lyrebrook
