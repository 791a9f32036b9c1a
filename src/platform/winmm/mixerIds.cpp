#include "platform/winmm/mixerIds.h"

#include <algorithm>
#include <array>

namespace lyrebrook {
namespace {

/// By kind.
constexpr std::array publishedTypes{MIXERCONTROL_CONTROLTYPE_VOLUME, MIXERCONTROL_CONTROLTYPE_MUTE,
                                    MIXERCONTROL_CONTROLTYPE_MIXER, MIXERCONTROL_CONTROLTYPE_MUX,
                                    MIXERCONTROL_CONTROLTYPE_PEAKMETER};

}  // namespace

std::int32_t publishedTypeOf(MixerControlKind kind) {
    return publishedTypes.at(static_cast<std::size_t>(kind));
}

std::optional<MixerControlKind> kindOf(std::int32_t publishedType) {
    const auto found = std::ranges::find(publishedTypes, publishedType);
    if (found == publishedTypes.end()) return std::nullopt;
    return static_cast<MixerControlKind>(found - publishedTypes.begin());
}

std::int32_t controlIdOf(const MixerControlPlace& place) {
    const auto line = static_cast<std::uint32_t>(place.line);
    const auto kind = static_cast<std::uint32_t>(place.kind);
    return static_cast<std::int32_t>((line & 0xFFFF0000U) | (line & 0xFFU) << 8U | kind);
}

MixerControlPlace placeOf(std::int32_t controlId) {
    const auto id = static_cast<std::uint32_t>(controlId);
    return {static_cast<std::int32_t>((id & 0xFFFF0000U) | (id >> 8U & 0xFFU)),
            static_cast<MixerControlKind>(id & 0xFFU)};
}

WindowMessage messageOf(HMIXER mixer, const MixerChange& change) {
    const auto wParam = static_cast<WPARAM>(mixer);
    if (!change.control) return {MM_MIXM_LINE_CHANGE, wParam, change.line};
    return {MM_MIXM_CONTROL_CHANGE, wParam, controlIdOf({change.line, *change.control})};
}

}  // namespace lyrebrook
