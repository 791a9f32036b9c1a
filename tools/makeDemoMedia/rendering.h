#pragma once

#include <vector>

#include "composer/Arrangement.h"
#include "platform/sound/SoundFormat.h"

namespace lyrebrook {

/// The band's playing to the last of the ring-out, at the loudness of a CD. Needs the system's SoundFont; RuntimeError
/// without it.
std::vector<StereoFrame> renderTune(const Arrangement& tune);

}  // namespace lyrebrook
