#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/sound/SoundFormat.h"

namespace lyrebrook {

/// RuntimeError `invalidProcedureCall` unless the format is the one format.
void requireTrackFormat(const WAVEFORMATEX& format);

/// The size in bytes. RuntimeError `invalidProcedureCall` below 0, `overflow` when it isn't countable as whole frames.
std::int64_t requireSize(std::int32_t bytes);

/// RuntimeError `invalidProcedureCall` unless `size` bytes from `start` lie inside `length` and fit into `space`.
void requireRange(std::int32_t start, std::int32_t size, std::int64_t length, std::size_t space);

}  // namespace lyrebrook
