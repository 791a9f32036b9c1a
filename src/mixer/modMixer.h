#pragma once

#include <QString>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/winmm/mixer.h"

namespace lyrebrook {

/// The only place that speaks to the card's mixer. Each operation looks its control up by line and type, uses it and
/// lets it go: nothing is cached but the tables of lines, which are taken to stay valid from one opening to the next.
/// Nothing here shows a message: an operation answers false when a call of the mixer failed, and the caller decides.
/// Process-wide, the program's thread.

extern bool gMixerOpen;              ///< from `showMasterMixer` until the screen is unloaded, hidden or not
extern HMIXER gMixerHandle;          ///< 0 from each opening on, not cleared by closing
extern std::int32_t gMixerDeviceID;  ///< as opened
extern std::int32_t gPlaybackLineCount, gRecordLineCount;
extern std::vector<std::int32_t> gPlaybackLineIDs, gRecordLineIDs;  ///< an entry a panel, in the order of the panels

/// True while a control is made to show what the mixer says, so that its event doesn't write it back.
extern bool gSettingControl;

/// Sets `gSettingControl` for the length of one assignment.
class SettingControl {
  public:
    SettingControl() { gSettingControl = true; }
    ~SettingControl() { gSettingControl = false; }
    SettingControl(const SettingControl&) = delete;
    SettingControl& operator=(const SettingControl&) = delete;
};

/// As at the start of the program; an open mixer is closed.
void forgetMixer();

/// A line's range and its one value for all channels.
struct LineVolume {
    std::int32_t max = 0;
    std::int32_t min = 0;
    std::int32_t val = 0;
};

/// Text of a record: the bytes up to the first zero, without blanks at the ends. A character that was cut at the end is
/// left out.
QString recordText(std::span<const char> field);

/// Reads the destination of a type.
bool getDestination(HMIXER mixer, std::int32_t componentType, MIXERLINE& line);

/// Whether the destination is the card's first, whose own line comes ahead of its sources.
bool isFirstDestination(const MIXERLINE& destination);

/// Sources of a destination that have any control, in their order.
std::vector<MIXERLINE> usableSources(HMIXER mixer, const MIXERLINE& destination);

/// Lines of a destination that get a panel; none when there is no such destination.
std::int16_t countMixerLines(HMIXER mixer, std::int32_t componentType);

/// On failure `volume` stays as it was.
bool getLineVolume(HMIXER mixer, std::int32_t line, LineVolume& volume);

/// Keeps the ratio of the channels. A line that stands at 0 has none: its channels come up equal.
bool setLineVolume(HMIXER mixer, std::int32_t line, std::int32_t value);

/// Right minus left.
bool getLineBalance(HMIXER mixer, std::int32_t line, std::int32_t& balance);
bool setLineBalance(HMIXER mixer, std::int32_t line, std::int32_t balance);

bool getLineMute(HMIXER mixer, std::int32_t line, bool& muted);
void setLineMute(HMIXER mixer, std::int32_t line, std::int32_t value);

/// Whether the selection of the line's destination has it. The destination follows from the ID: an odd one is a
/// recording line's. A selection whose texts can't be read answers for its first item.
bool getLineSelected(HMIXER mixer, std::int32_t line, bool& selected);

/// All other lines of the destination are taken out of the selection.
bool setLineSelected(HMIXER mixer, std::int32_t line, std::int32_t flag);

}  // namespace lyrebrook
