#include "mixer/modMixer.h"

#include <algorithm>
#include <optional>

#include "platform/base/Numbers.h"
#include "platform/files/Text.h"
#include "platform/files/TextEncoding.h"

namespace lyrebrook {

bool gMixerOpen = false;
HMIXER gMixerHandle = 0;
std::int32_t gMixerDeviceID = 0;
std::int32_t gPlaybackLineCount = 0;
std::int32_t gRecordLineCount = 0;
std::vector<std::int32_t> gPlaybackLineIDs;
std::vector<std::int32_t> gRecordLineIDs;
bool gSettingControl = false;

namespace {

using Values = std::vector<std::int32_t>;

std::optional<MIXERCONTROL> findControl(HMIXER mixer, std::int32_t line, std::int32_t type) {
    MIXERCONTROL control;
    MIXERLINECONTROLS controls;
    controls.dwLineID = line;
    controls.dwControlType = type;
    controls.pamxctrl = &control;
    if (mixerGetLineControlsA(mixer, controls, MIXER_GETLINECONTROLSF_ONEBYTYPE) != MMSYSERR_NOERROR) return {};
    return control;
}

/// Describes a block of one value an item, or an item a channel where the control has no items.
MIXERCONTROLDETAILS detailsOf(const MIXERCONTROL& control, std::size_t channels, Values& values) {
    MIXERCONTROLDETAILS details;
    details.dwControlID = control.dwControlID;
    details.cChannels = static_cast<std::int32_t>(channels);
    details.cMultipleItems = control.cMultipleItems;
    details.paDetails = values.data();
    return details;
}

std::optional<Values> readChannels(HMIXER mixer, const MIXERCONTROL& control, std::size_t channels) {
    Values values(channels);
    MIXERCONTROLDETAILS details = detailsOf(control, channels, values);
    if (mixerGetControlDetailsA(mixer, details, MIXER_GETCONTROLDETAILSF_VALUE) != MMSYSERR_NOERROR) return {};
    return values;
}

/// The driver's one value for all channels.
std::optional<std::int32_t> readUniform(HMIXER mixer, const MIXERCONTROL& control) {
    const auto values = readChannels(mixer, control, 1);
    if (!values) return {};
    return values->front();
}

bool writeChannels(HMIXER mixer, const MIXERCONTROL& control, Values values) {
    const MIXERCONTROLDETAILS details = detailsOf(control, values.size(), values);
    return mixerSetControlDetails(mixer, details, MIXER_SETCONTROLDETAILSF_VALUE) == MMSYSERR_NOERROR;
}

std::optional<MIXERCONTROL> volumeControl(HMIXER mixer, std::int32_t line) {
    return findControl(mixer, line, MIXERCONTROL_CONTROLTYPE_VOLUME);
}

std::size_t channelsOf(HMIXER mixer, std::int32_t lineId) {
    MIXERLINE line;
    line.dwLineID = lineId;
    if (mixerGetLineInfoA(mixer, line, MIXER_GETLINEINFOF_LINEID) != MMSYSERR_NOERROR) return 0;
    return static_cast<std::size_t>(std::max(0, line.cChannels));
}

/// A destination's selection and the number of its sources, which are the items.
struct Selection {
    MIXERCONTROL control;
    std::size_t items = 0;
};

std::optional<Selection> selectionFor(HMIXER mixer, std::int32_t line) {
    const bool isRecording = line % 2 != 0;
    MIXERLINE destination;
    const bool read = getDestination(
        mixer, isRecording ? MIXERLINE_COMPONENTTYPE_DST_WAVEIN : MIXERLINE_COMPONENTTYPE_DST_SPEAKERS, destination);
    if (!read || destination.cConnections < 1) return {};
    auto control = findControl(mixer, destination.dwLineID, MIXERCONTROL_CONTROLTYPE_MIXER);
    if (!control) control = findControl(mixer, destination.dwLineID, MIXERCONTROL_CONTROLTYPE_MUX);
    if (!control) return {};
    return Selection{*control, static_cast<std::size_t>(destination.cConnections)};
}

MIXERCONTROLDETAILS detailsOf(const Selection& selection, void* block, std::int32_t bytesAnItem) {
    MIXERCONTROLDETAILS details;
    details.dwControlID = selection.control.dwControlID;
    details.cMultipleItems = static_cast<std::int32_t>(selection.items);
    details.cbDetails = bytesAnItem;
    details.paDetails = block;
    return details;
}

/// The line's place among the items; nothing when no item is the line's. Texts that can't be read leave the search at
/// its beginning.
std::optional<std::size_t> positionOf(HMIXER mixer, const Selection& selection, std::int32_t line) {
    std::vector<MIXERCONTROLDETAILS_LISTTEXT> texts(selection.items);
    MIXERCONTROLDETAILS details = detailsOf(selection, texts.data(), sizeof(MIXERCONTROLDETAILS_LISTTEXT));
    if (mixerGetControlDetailsA(mixer, details, MIXER_GETCONTROLDETAILSF_LISTTEXT) != MMSYSERR_NOERROR) return 0;
    const auto found = std::ranges::find(texts, line, &MIXERCONTROLDETAILS_LISTTEXT::dwParam1);
    if (found == texts.end()) return {};
    return static_cast<std::size_t>(found - texts.begin());
}

}  // namespace

void forgetMixer() {
    gMixerOpen = false;
    mixerClose(gMixerHandle);
    gMixerHandle = 0;
    gMixerDeviceID = 0;
    gPlaybackLineCount = 0;
    gRecordLineCount = 0;
    gPlaybackLineIDs.clear();
    gRecordLineIDs.clear();
    gSettingControl = false;
}

QString recordText(std::span<const char> field) {
    const auto end = std::ranges::find(field, '\0');
    QByteArrayView bytes(field.data(), end - field.begin());
    constexpr qsizetype longestPart = 3;  // of a character of four bytes
    for (qsizetype cut = 0; cut <= std::min(longestPart, bytes.size()); ++cut) {
        const QByteArrayView whole = bytes.chopped(cut);
        if (whole.isValidUtf8()) return trimBlanks(decodeText(whole));
    }
    return trimBlanks(decodeText(bytes));
}

bool getDestination(HMIXER mixer, std::int32_t componentType, MIXERLINE& line) {
    line = {};
    line.dwComponentType = componentType;
    return mixerGetLineInfoA(mixer, line, MIXER_GETLINEINFOF_COMPONENTTYPE) == MMSYSERR_NOERROR;
}

bool isFirstDestination(const MIXERLINE& destination) {
    return (static_cast<std::uint32_t>(destination.dwLineID) & 0xFFFFU) == 0;
}

std::vector<MIXERLINE> usableSources(HMIXER mixer, const MIXERLINE& destination) {
    std::vector<MIXERLINE> usable;
    for (std::int32_t source = 0; source < destination.cConnections; ++source) {
        MIXERLINE line = destination;
        line.dwSource = source;
        const bool read = mixerGetLineInfoA(mixer, line, MIXER_GETLINEINFOF_SOURCE) == MMSYSERR_NOERROR;
        if (read && line.cControls > 0) usable.push_back(line);
    }
    return usable;
}

std::int16_t countMixerLines(HMIXER mixer, std::int32_t componentType) {
    MIXERLINE destination;
    if (!getDestination(mixer, componentType, destination)) return 0;
    const auto sources = usableSources(mixer, destination).size();
    return toInt16(static_cast<double>(sources + (isFirstDestination(destination) ? 1 : 0)));
}

bool getLineVolume(HMIXER mixer, std::int32_t line, LineVolume& volume) {
    const auto control = volumeControl(mixer, line);
    if (!control) return false;
    const auto value = readUniform(mixer, *control);
    if (!value) return false;
    volume = {.max = control->dwMaximum, .min = control->dwMinimum, .val = *value};
    return true;
}

bool setLineVolume(HMIXER mixer, std::int32_t line, std::int32_t value) {
    const std::size_t channels = channelsOf(mixer, line);
    const auto control = volumeControl(mixer, line);
    if (channels == 0 || !control) return false;
    const auto current = readUniform(mixer, *control);
    auto values = readChannels(mixer, *control, channels);
    if (!current || !values) return false;
    for (std::int32_t& channel : *values) {
        channel = *current > 0 ? toInt32(static_cast<double>(channel) / *current * value) : value;
    }
    return writeChannels(mixer, *control, *values);
}

bool getLineBalance(HMIXER mixer, std::int32_t line, std::int32_t& balance) {
    const auto control = volumeControl(mixer, line);
    if (!control) return false;
    const auto sides = readChannels(mixer, *control, 2);
    if (!sides) return false;
    balance = toInt32(static_cast<double>((*sides)[1]) - (*sides)[0]);
    return true;
}

bool setLineBalance(HMIXER mixer, std::int32_t line, std::int32_t balance) {
    const auto control = volumeControl(mixer, line);
    if (!control) return false;
    const auto uniform = readUniform(mixer, *control);
    if (!uniform || !readChannels(mixer, *control, 2)) return false;
    const double v = *uniform;
    const Values sides = balance < 1 ? Values{*uniform, toInt32(v + balance)} : Values{toInt32(v - balance), *uniform};
    return writeChannels(mixer, *control, sides);
}

bool getLineMute(HMIXER mixer, std::int32_t line, bool& muted) {
    const auto control = findControl(mixer, line, MIXERCONTROL_CONTROLTYPE_MUTE);
    if (!control) return false;
    const auto value = readUniform(mixer, *control);
    if (!value) return false;
    muted = *value != 0;
    return true;
}

void setLineMute(HMIXER mixer, std::int32_t line, std::int32_t value) {
    const auto control = findControl(mixer, line, MIXERCONTROL_CONTROLTYPE_MUTE);
    if (control) writeChannels(mixer, *control, {value});
}

bool getLineSelected(HMIXER mixer, std::int32_t line, bool& selected) {
    const auto selection = selectionFor(mixer, line);
    if (!selection) return false;
    Values flags(selection->items);
    MIXERCONTROLDETAILS details = detailsOf(*selection, flags.data(), sizeof(MIXERCONTROLDETAILS_BOOLEAN));
    if (mixerGetControlDetailsA(mixer, details, MIXER_GETCONTROLDETAILSF_VALUE) != MMSYSERR_NOERROR) return false;
    const auto position = positionOf(mixer, *selection, line);
    if (!position) return false;
    selected = flags[*position] != 0;
    return true;
}

bool setLineSelected(HMIXER mixer, std::int32_t line, std::int32_t flag) {
    const auto selection = selectionFor(mixer, line);
    if (!selection) return false;
    const auto position = positionOf(mixer, *selection, line);
    if (!position) return false;
    Values flags(selection->items);
    flags[*position] = flag;
    const MIXERCONTROLDETAILS details = detailsOf(*selection, flags.data(), sizeof(MIXERCONTROLDETAILS_BOOLEAN));
    return mixerSetControlDetails(mixer, details, MIXER_SETCONTROLDETAILSF_VALUE) == MMSYSERR_NOERROR;
}

}  // namespace lyrebrook
