#pragma once

#include <cstdint>

namespace lyrebrook {

/// Outputs that a person could hear; none without a card. Program's thread.
std::int32_t waveOutGetNumDevs();

}  // namespace lyrebrook
