#include "platform/sound/bufferChecks.h"

#include "platform/base/RuntimeError.h"

namespace lyrebrook {

void requireTrackFormat(const WAVEFORMATEX& format) {
    if (format == trackFormat()) return;
    throw RuntimeError(RuntimeErrorNumber::invalidProcedureCall,
                       "Sound buffers are 16-bit stereo at 44100 frames per second");
}

std::int64_t requireSize(std::int32_t bytes) {
    if (bytes < 0)
        throw RuntimeError(RuntimeErrorNumber::invalidProcedureCall, "The size of a sound buffer is negative");
    if (framesToHold(bytes) > longestBuffer) throw RuntimeError(RuntimeErrorNumber::overflow, "Overflow");
    return bytes;
}

void requireRange(std::int32_t start, std::int32_t size, std::int64_t length, std::size_t space) {
    const bool inside = start >= 0 && size >= 0 && std::int64_t{start} + size <= length;
    if (inside && static_cast<std::size_t>(size) <= space) return;
    throw RuntimeError(RuntimeErrorNumber::invalidProcedureCall, "The range lies outside the sound buffer");
}

}  // namespace lyrebrook
