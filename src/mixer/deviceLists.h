#pragma once

#include <cstdint>

namespace lyrebrook {

/// Fill the mixer screen's lists, and tell how many entries they made. A list of devices stops at the first that tells
/// nothing of itself.
std::int32_t listMixerDevices();
std::int32_t listWaveInDevices();

/// Formats of `gWaveInDeviceID`, in the order of `gRecFormats`.
std::int32_t listRecFormats();

}  // namespace lyrebrook
