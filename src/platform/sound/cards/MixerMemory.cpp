#include "platform/sound/cards/MixerMemory.h"

#include <utility>

namespace lyrebrook {
namespace {

std::vector<MixerControlPlace> controlsOf(const MixerLayout& layout) {
    std::vector<MixerControlPlace> places;
    const auto add = [&places](const MixerLineInfo& line) {
        for (const MixerControlInfo& control : line.controls) places.push_back({line.id, control.kind});
    };
    for (const MixerDestination& destination : layout) {
        add(destination.line);
        for (const MixerLineInfo& source : destination.sources) add(source);
    }
    return places;
}

}  // namespace

std::vector<MixerControlPlace> MixerMemory::look(const MixerDevice& device) {
    std::vector<MixerControlPlace> changed;
    for (const MixerControlPlace& place : controlsOf(device.layout())) {
        auto value = device.read(place);
        if (std::exchange(known_[place], value) != value) changed.push_back(place);
    }
    return changed;
}

}  // namespace lyrebrook
