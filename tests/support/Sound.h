#pragma once

#include <concepts>
#include <cstdint>
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

/// Frames that tell their place, up to `first` 17000: one lost, doubled or moved shows itself.
inline Sound ramp(std::integral auto length, std::int16_t first = 1) {
    Sound sound(static_cast<std::size_t>(length));
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const auto value = static_cast<std::int16_t>(first + static_cast<std::int16_t>(i % 15000));
        sound[i] = {value, static_cast<std::int16_t>(-value)};
    }
    return sound;
}

inline Sound silence(std::integral auto length) {
    return Sound(static_cast<std::size_t>(length));
}

inline Sound part(const Sound& sound, std::integral auto from, std::integral auto length) {
    const auto begin = sound.begin() + static_cast<std::ptrdiff_t>(from);
    return {begin, begin + static_cast<std::ptrdiff_t>(length)};
}

}  // namespace lyrebrook
