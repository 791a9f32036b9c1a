#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace lyrebrook {

inline std::string bytes(std::initializer_list<int> values) {
    std::string text;
    for (const int value : values) text += static_cast<char>(value);
    return text;
}

inline std::string chunk(const std::string& name, const std::string& content) {
    const auto size = static_cast<int>(content.size());
    return name + bytes({size >> 24, size >> 16, size >> 8, size}) + content;
}

/// At 50 ticks to the quarter a tick is a hundredth of a second, until a track says otherwise.
inline std::string midiFile(const std::vector<std::string>& tracks, int kind = 1, int division = 50) {
    const auto count = static_cast<int>(tracks.size());
    std::string file = chunk("MThd", bytes({0, kind, 0, count, division >> 8, division}));
    for (const std::string& each : tracks) file += chunk("MTrk", each);
    return file;
}

inline const std::string endOfTrack = bytes({0, 0xFF, 0x2F, 0});

/// A dry, short knock after `ticks`, which must be below 128.
inline std::string knock(int ticks) {
    return bytes({ticks, 0x99, 37, 120, 0, 0xB9, 91, 0});
}

}  // namespace lyrebrook
