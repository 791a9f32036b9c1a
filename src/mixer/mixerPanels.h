#pragma once

#include <cstdint>
#include <vector>

#include "platform/winmm/mixer.h"

namespace lyrebrook {

struct LineRow;

/// Fills one of the tables of lines and gives the panels of `row` their names; panels that are left over are hidden,
/// lines beyond the panels are left out. The card's first destination has its own line, "Master", ahead of its sources.
/// In whose hidden boxes the IDs go is decided by that too, not by the type that was asked for.
struct LineTable {
    std::int32_t& count;
    std::vector<std::int32_t>& ids;
};
void fillLineIDs(HMIXER mixer, std::int32_t componentType, const LineRow& row, LineTable table);

void loadMixerLines(HMIXER mixer, LineTable playback, LineTable recording);

/// Brings the panels to what the mixer says. Unless forced, only what differs is written. A control without a
/// counterpart on the card is disabled.
void refreshMixerControls(bool force);

}  // namespace lyrebrook
