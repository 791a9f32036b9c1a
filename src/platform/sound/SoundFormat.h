#pragma once

#include <cstdint>

namespace lyrebrook {

/// Place or length on the timeline or in a buffer: one frame is a left and a right sample.
using Frames = std::int64_t;

/// One frame of the one format, laid out as in a wave file. Aligned so that it is read and written in one piece.
struct alignas(4) StereoFrame {
    std::int16_t left = 0;
    std::int16_t right = 0;

    friend bool operator==(const StereoFrame&, const StereoFrame&) = default;
};

inline constexpr std::int32_t framesPerSecond = 44100;
inline constexpr std::int32_t bytesPerFrame = 4;
inline constexpr std::int32_t bytesPerSecond = framesPerSecond * bytesPerFrame;
inline constexpr std::int32_t headerBytes = 44;

struct WAVEFORMATEX {
    std::int16_t nFormatTag = 0;
    std::int16_t nChannels = 0;
    std::int32_t lSamplesPerSec = 0;
    std::int32_t lAvgBytesPerSec = 0;
    std::int16_t nBlockAlign = 0;
    std::int16_t nBitsPerSample = 0;
    std::int16_t nSize = 0;

    friend bool operator==(const WAVEFORMATEX&, const WAVEFORMATEX&) = default;
};

/// The one format: PCM, stereo, 16 bits, 44100 frames to the second.
constexpr WAVEFORMATEX trackFormat() {
    return {.nFormatTag = 1,
            .nChannels = 2,
            .lSamplesPerSec = framesPerSecond,
            .lAvgBytesPerSec = bytesPerSecond,
            .nBlockAlign = bytesPerFrame,
            .nBitsPerSample = 16,
            .nSize = 0};
}

/// Bytes are what the recorder counts in, frames what the engine does; these three are the only crossings.
constexpr Frames wholeFrames(std::int64_t bytes) {
    return bytes > 0 ? bytes / bytesPerFrame : 0;
}
constexpr Frames framesToHold(std::int64_t bytes) {
    return wholeFrames(bytes + bytesPerFrame - 1);
}
constexpr std::int32_t toBytes(Frames frames) {
    return static_cast<std::int32_t>(frames * bytesPerFrame);
}

/// The longest buffer whose bytes a 32-bit integer can count.
inline constexpr Frames longestBuffer = INT32_MAX / bytesPerFrame;

}  // namespace lyrebrook
