#include "recorder/recorderMemory.h"

namespace lyrebrook {

std::array<std::int16_t, 21> gTrackLevel{};
std::array<std::int16_t, 21> gTrackReverb{};
RecorderMemory gRecorderMemory;

void forgetRecorder() {
    gTrackLevel.fill(0);
    gTrackReverb.fill(0);
    gRecorderMemory = {};
}

}  // namespace lyrebrook
