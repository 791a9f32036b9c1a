#pragma once

#include <pulse/pulseaudio.h>

#include <cstdint>
#include <span>
#include <vector>

namespace lyrebrook {

/// Volumes of the server as levels of a mixer, 0 to 65535 on the scale of the server's own tools, one a side, of a mono
/// device only one. What is louder than unchanged is told as the top.
std::int32_t sidesOf(const pa_channel_map& channels);
std::vector<std::int32_t> levelsOf(const pa_cvolume& volume, const pa_channel_map& channels);

/// Channels in the middle take the louder side.
pa_cvolume volumeOf(std::span<const std::int32_t> levels, const pa_channel_map& channels);

}  // namespace lyrebrook
