#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/winmm/waveIn.h"

namespace lyrebrook {

/// State and arithmetic of the capture path behind the mixer's level columns. The path is idle: nothing opens it.
/// Process-wide, the program's thread.

struct WaveFormatEntry {
    std::int32_t channels = 0;
    std::int32_t samplesPerSec = 0;
    std::int32_t bitsPerSample = 0;

    friend bool operator==(const WaveFormatEntry&, const WaveFormatEntry&) = default;
};

extern std::vector<WaveFormatEntry> gRecFormats;  ///< of the wave-in device, as `lstRecFormats` lists them
extern std::int32_t gRecFormatCount;
extern std::int32_t gRecFormatIndex;  ///< format in use
extern std::int32_t gWaveInDeviceID;
extern HWAVEIN gWaveInHandle;
extern bool gCapturing;
extern std::array<WAVEHDR, 16> gInputHeaders;
extern std::int32_t gLeftLevel, gRightLevel;  ///< last peaks

/// Formats that a device takes, from the coarsest up. False when it has none, or doesn't tell.
bool getWaveInFormats(std::int32_t device, std::int32_t& count, std::vector<WaveFormatEntry>& formats);

struct InputPeaks {
    std::int32_t left = 0;
    std::int32_t right = 0;
};

/// Peaks of a full buffer. Only the positive half of the wave counts.
InputPeaks getInputPeaks(const WAVEHDR& header, const WaveFormatEntry& format);

/// Full scale of a format's peaks.
std::int32_t fullScaleOf(const WaveFormatEntry& format);

}  // namespace lyrebrook
