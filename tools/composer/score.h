#pragma once

#include <string>

#include "Arrangement.h"

namespace lyrebrook {

/// The content of a standard MIDI file in which the band plays the arrangement.
std::string scoreOf(const Arrangement& song);

}  // namespace lyrebrook
