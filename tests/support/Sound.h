#pragma once

#include <ostream>
#include <vector>

#include "platform/sound/SoundFormat.h"

namespace lyrebrook {

using Sound = std::vector<StereoFrame>;

inline void PrintTo(const StereoFrame& frame, std::ostream* out) {
    *out << frame.left << '/' << frame.right;
}

inline Sound operator+(Sound first, const Sound& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

}  // namespace lyrebrook
