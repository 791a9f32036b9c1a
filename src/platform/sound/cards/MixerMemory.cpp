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

std::vector<MixerControlPlace> MixerMemory::look(const MixerLayout& layout,
                                                 const std::function<MixerValues(const MixerControlPlace&)>& read) {
    std::vector<MixerControlPlace> changed;
    for (const MixerControlPlace& place : controlsOf(layout)) {
        auto values = read(place);
        if (!values) continue;
        if (std::exchange(known_[place], *values) != *values) changed.push_back(place);
    }
    return changed;
}

MixerValues MixerMemory::last(const MixerControlPlace& place) const {
    const auto found = known_.find(place);
    if (found == known_.end()) return std::nullopt;
    return found->second;
}

}  // namespace lyrebrook
