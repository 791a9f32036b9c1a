#pragma once

#include <cstdint>
#include <optional>

#include "platform/sound/MixerBackend.h"
#include "platform/winmm/MessageWindow.h"
#include "platform/winmm/mixerRecords.h"

namespace lyrebrook {

/// How the places of a backend are numbered and named for callers of the mixer functions.

std::int32_t publishedTypeOf(MixerControlKind kind);
std::optional<MixerControlKind> kindOf(std::int32_t publishedType);

/// The ID tells the place: the line's source in the high word, its destination and the control's kind a byte each.
std::int32_t controlIdOf(const MixerControlPlace& place);
MixerControlPlace placeOf(std::int32_t controlId);

WindowMessage messageOf(HMIXER mixer, const MixerChange& change);

}  // namespace lyrebrook
