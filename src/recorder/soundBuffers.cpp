#include "recorder/soundBuffers.h"

#include "platform/base/Numbers.h"

namespace lyrebrook {

DSBUFFERDESC trackBufferDescription(std::int32_t bytes) {
    constexpr std::int32_t panVolumeEffectsStickyFocus = 17088;
    return {.lFlags = panVolumeEffectsStickyFocus, .lBufferBytes = bytes, .fxFormat = trackFormat()};
}

DSCBUFFERDESC captureDescription(float seconds) {
    const double bytes = static_cast<double>(seconds) * bytesPerSecond;
    return {.lFlags = 0, .lBufferBytes = toInt32(bytes), .fxFormat = trackFormat()};
}

std::unique_ptr<DirectSoundCaptureBuffer8> startMeterCapture(DirectSoundCapture8& capture) {
    constexpr std::int32_t meterBytes = 32768;
    auto buffer = capture.CreateCaptureBuffer({.lFlags = 0, .lBufferBytes = meterBytes, .fxFormat = trackFormat()});
    buffer->Start(DSCBSTART_LOOPING);
    return buffer;
}

}  // namespace lyrebrook
