#pragma once

#include <cstdint>

namespace lyrebrook {

/// Bytes of sound in the file of a track of the current song, by the file's size on the disk as it is now: what the
/// file holds behind its header. 0 when it can't be measured, or is shorter than a header.
std::int32_t getWaveLength(int track);

}  // namespace lyrebrook
