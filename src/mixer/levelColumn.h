#pragma once

#include <QString>
#include <cstdint>
#include <vector>

namespace lyrebrook {

/// Arithmetic of the level columns and of the figures beside the sliders. Rows are counted as the picture counts them.

/// Colours of a column's rows from the bottom up, blue, green and red from the high byte down: black to the middle,
/// then rising to full red. At least two.
std::vector<std::uint32_t> vuRamp(std::int32_t height);

/// The highest row that is lit, counted from the top; the height when none is.
std::int32_t topLitRow(std::int32_t fullScale, std::int32_t level, double height);

/// What the box under a column shows, 0 to 32.
QString levelText(std::int32_t level, std::int32_t fullScale);

/// A slider's place as a volume: its top is 100. RuntimeError `divisionByZero` when its range is empty.
QString percentText(std::int32_t value, std::int32_t min, std::int32_t max);

/// The place of a volume on a slider whose top is the loudest, and the other way round.
std::int32_t turnedOver(std::int32_t value, std::int32_t min, std::int32_t max);

}  // namespace lyrebrook
