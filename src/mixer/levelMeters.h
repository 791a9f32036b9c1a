#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "recorder/LevelBars.h"

namespace lyrebrook {

class PictureBox;

/// The two level columns of the mixer screen. Painting keeps no state: each call paints the whole column.

extern std::vector<std::uint32_t> gVUColors;     ///< of each row, from the bottom; empty before the first opening
extern std::array<std::int32_t, 2> gLastLevels;  ///< last painted by `updateVUMeters`, left then right

void buildVUColors(std::int32_t height);

/// Lights the rows of a column up to the level; the rest takes the back colour.
void drawVUMeter(std::int32_t fullScale, std::int32_t level, PictureBox& picture);

/// Paints what changed, and writes it into the boxes.
void updateVUMeters(std::int32_t left, std::int32_t right, std::int32_t fullScale);

/// What a recording screen measured goes to the columns too, while the mixer screen is open. The boxes under them turn
/// red above 80 percent of the left side, both of them. Nothing measured leaves them as they are.
void feedLevelColumns(const std::optional<LevelBars::Averages>& averages);

}  // namespace lyrebrook
