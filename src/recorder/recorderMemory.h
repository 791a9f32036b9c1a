#pragma once

#include <array>
#include <cstdint>

#include "recorder/Marks.h"

namespace lyrebrook {

/// What outlives the recorder's screen, until the program ends. Program's thread.

/// Sliders of a track, by track number; 0 means that they keep their design value, and so can't be kept themselves.
extern std::array<std::int16_t, 21> gTrackLevel;
extern std::array<std::int16_t, 21> gTrackReverb;

struct RecorderMemory {
    Marks marks;
    int recordTrack = 0;  ///< 0 before any was armed
};
extern RecorderMemory gRecorderMemory;

/// As at the start of the program.
void forgetRecorder();

}  // namespace lyrebrook
