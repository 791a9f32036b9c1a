#include "platform/sound/cards/pulse/pulseLevels.h"

#include <algorithm>
#include <cmath>

namespace lyrebrook {
namespace {

constexpr std::int32_t topLevel = 65535;

enum class Side { left, right, middle };

Side sideOf(pa_channel_position_t position) {
    switch (position) {
        case PA_CHANNEL_POSITION_FRONT_LEFT:
        case PA_CHANNEL_POSITION_REAR_LEFT:
        case PA_CHANNEL_POSITION_SIDE_LEFT:
        case PA_CHANNEL_POSITION_FRONT_LEFT_OF_CENTER:
        case PA_CHANNEL_POSITION_TOP_FRONT_LEFT:
        case PA_CHANNEL_POSITION_TOP_REAR_LEFT:
            return Side::left;
        case PA_CHANNEL_POSITION_FRONT_RIGHT:
        case PA_CHANNEL_POSITION_REAR_RIGHT:
        case PA_CHANNEL_POSITION_SIDE_RIGHT:
        case PA_CHANNEL_POSITION_FRONT_RIGHT_OF_CENTER:
        case PA_CHANNEL_POSITION_TOP_FRONT_RIGHT:
        case PA_CHANNEL_POSITION_TOP_REAR_RIGHT:
            return Side::right;
        default:
            return Side::middle;
    }
}

std::int32_t levelOf(pa_volume_t volume) {
    const double level = static_cast<double>(std::min<pa_volume_t>(volume, PA_VOLUME_NORM)) * topLevel / PA_VOLUME_NORM;
    return static_cast<std::int32_t>(std::lrint(level));
}

pa_volume_t volumeOf(std::int32_t level) {
    const double volume = static_cast<double>(std::clamp(level, 0, topLevel)) * PA_VOLUME_NORM / topLevel;
    return static_cast<pa_volume_t>(std::lrint(volume));
}

/// The loudest channel of a side, the middle standing in where the side has none.
std::int32_t levelOfSide(const pa_cvolume& volume, const pa_channel_map& channels, Side side) {
    pa_volume_t own = 0;
    pa_volume_t middle = 0;
    bool found = false;
    for (std::size_t i = 0; i < std::min(volume.channels, channels.channels); ++i) {
        const Side here = sideOf(channels.map[i]);
        if (here == side) own = std::max(own, volume.values[i]);
        if (here == Side::middle) middle = std::max(middle, volume.values[i]);
        found = found || here == side;
    }
    return levelOf(found ? own : middle);
}

}  // namespace

std::int32_t sidesOf(const pa_channel_map& channels) {
    return channels.channels < 2 ? 1 : 2;
}

std::vector<std::int32_t> levelsOf(const pa_cvolume& volume, const pa_channel_map& channels) {
    if (sidesOf(channels) == 1) return {levelOf(pa_cvolume_max(&volume))};
    return {levelOfSide(volume, channels, Side::left), levelOfSide(volume, channels, Side::right)};
}

pa_cvolume volumeOf(std::span<const std::int32_t> levels, const pa_channel_map& channels) {
    pa_cvolume volume{};
    pa_cvolume_set(&volume, channels.channels, volumeOf(std::ranges::max(levels)));
    for (std::size_t i = 0; i < channels.channels; ++i) {
        const Side side = sideOf(channels.map[i]);
        if (side == Side::left) volume.values[i] = volumeOf(levels.front());
        if (side == Side::right) volume.values[i] = volumeOf(levels.back());
    }
    return volume;
}

}  // namespace lyrebrook
