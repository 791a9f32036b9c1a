#include "platform/winmm/mixer.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <utility>

#include "platform/sound/SoundSystem.h"
#include "platform/winmm/mixerIds.h"
#include "platform/winmm/recordText.h"

namespace lyrebrook {
namespace {

/// An open mixer, with the way to its window.
struct OpenMixer {
    std::unique_ptr<MixerDevice> device;
    MessagePost post;
};

/// A line in its place; `source` is null for the destination itself.
struct LinePlace {
    std::size_t destinationNumber = 0;
    std::size_t sourceNumber = destinationItself;
    const MixerDestination* destination = nullptr;
    const MixerLineInfo* line = nullptr;
};

std::shared_ptr<MixerBackend>& backendInFront() {
    static std::shared_ptr<MixerBackend> backend;
    return backend;
}

std::map<HMIXER, OpenMixer>& openMixers() {
    static std::map<HMIXER, OpenMixer> mixers;
    return mixers;
}

OpenMixer* openMixer(HMIXER handle) {
    const auto found = openMixers().find(handle);
    return found == openMixers().end() ? nullptr : &found->second;
}

std::vector<LinePlace> allLines(const MixerLayout& layout) {
    std::vector<LinePlace> lines;
    for (std::size_t d = 0; d < layout.size(); ++d) {
        lines.push_back({d, destinationItself, &layout[d], &layout[d].line});
        for (std::size_t s = 0; s < layout[d].sources.size(); ++s) {
            lines.push_back({d, s, &layout[d], &layout[d].sources[s]});
        }
    }
    return lines;
}

bool isAskedFor(const LinePlace& place, const MIXERLINE& asked, std::int32_t flags) {
    switch (flags) {
        case MIXER_GETLINEINFOF_SOURCE:
            return std::cmp_equal(place.destinationNumber, asked.dwDestination) &&
                   std::cmp_equal(place.sourceNumber, asked.dwSource) && place.sourceNumber != destinationItself;
        case MIXER_GETLINEINFOF_LINEID:
            return place.line->id == asked.dwLineID;
        case MIXER_GETLINEINFOF_COMPONENTTYPE:
            return place.line->componentType == asked.dwComponentType;
        default:
            return false;
    }
}

const MixerLineInfo* findLine(const MixerLayout& layout, std::int32_t id) {
    for (const LinePlace& place : allLines(layout)) {
        if (place.line->id == id) return place.line;
    }
    return nullptr;
}

const MixerControlInfo* findControl(const MixerLayout& layout, const MixerControlPlace& place) {
    const MixerLineInfo* const line = findLine(layout, place.line);
    if (line == nullptr) return nullptr;
    const auto found = std::ranges::find(line->controls, place.kind, &MixerControlInfo::kind);
    return found == line->controls.end() ? nullptr : &*found;
}

void fill(MIXERLINE& line, const LinePlace& place) {
    const bool isDestination = place.sourceNumber == destinationItself;
    line = {};
    line.dwDestination = static_cast<std::int32_t>(place.destinationNumber);
    line.dwSource = isDestination ? -1 : static_cast<std::int32_t>(place.sourceNumber);
    line.dwLineID = place.line->id;
    line.fdwLine = 1 | (isDestination ? 0 : INT32_MIN);  // active, and a source
    line.dwComponentType = place.line->componentType;
    line.cChannels = place.line->channels;
    line.cConnections = isDestination ? static_cast<std::int32_t>(place.destination->sources.size()) : 0;
    line.cControls = static_cast<std::int32_t>(place.line->controls.size());
    setText(line.szShortName, place.line->name);
    setText(line.szName, place.line->name);
}

void fill(MIXERCONTROL& control, const MixerControlPlace& place, const MixerControlInfo& info) {
    constexpr std::int32_t uniform = 1;
    constexpr std::int32_t multiple = 2;
    control = {};
    control.dwControlID = controlIdOf(place);
    control.dwControlType = publishedTypeOf(place.kind);
    control.cMultipleItems = static_cast<std::int32_t>(info.items.size());
    control.fdwControl = (place.kind == MixerControlKind::volume ? 0 : uniform) | (info.items.empty() ? 0 : multiple);
    control.dwMinimum = info.minimum;
    control.dwMaximum = info.maximum;
}

/// How many values a caller's details hold; none when they can't be of this control. `one` stands for all channels.
enum class ValueShape { wrong, each, one };

ValueShape shapeOf(const MIXERCONTROLDETAILS& details, const MixerControlInfo& info, std::size_t values) {
    constexpr std::int32_t valueBytes = 4;
    if (details.cbDetails != valueBytes || details.paDetails == nullptr) return ValueShape::wrong;
    if (!info.items.empty()) {
        const bool all = details.cChannels == 1 && std::cmp_equal(details.cMultipleItems, values);
        return all ? ValueShape::each : ValueShape::wrong;
    }
    if (std::cmp_equal(details.cChannels, values)) return ValueShape::each;
    return details.cChannels == 1 ? ValueShape::one : ValueShape::wrong;
}

std::size_t bytesOf(const std::vector<std::int32_t>& values) {
    return values.size() * sizeof(std::int32_t);
}

MMRESULT readValues(const MixerDevice& device, const MixerControlPlace& place, const MixerControlInfo& info,
                    MIXERCONTROLDETAILS& details) {
    auto values = device.read(place);
    if (!values || values->empty()) return MMSYSERR_NODRIVER;
    const ValueShape shape = shapeOf(details, info, values->size());
    if (shape == ValueShape::wrong) return MMSYSERR_INVALPARAM;
    if (shape == ValueShape::one) *values = {std::ranges::max(*values)};
    std::memcpy(details.paDetails, values->data(), bytesOf(*values));
    return MMSYSERR_NOERROR;
}

MMRESULT readTexts(const MixerLayout& layout, const MixerControlInfo& info, MIXERCONTROLDETAILS& details) {
    constexpr std::int32_t textBytes = sizeof(MIXERCONTROLDETAILS_LISTTEXT);
    const bool fits = details.cbDetails == textBytes && details.cChannels == 1 && details.paDetails != nullptr &&
                      !info.items.empty() && std::cmp_equal(details.cMultipleItems, info.items.size());
    if (!fits) return MMSYSERR_INVALPARAM;
    auto* text = static_cast<MIXERCONTROLDETAILS_LISTTEXT*>(details.paDetails);
    for (const std::int32_t id : info.items) {
        const MixerLineInfo* const line = findLine(layout, id);
        *text = {};
        text->dwParam1 = id;
        if (line != nullptr) setText(text->szName, line->name);
        ++text;
    }
    return MMSYSERR_NOERROR;
}

}  // namespace

void setMixerBackend(std::shared_ptr<MixerBackend> backend) {
    backendInFront() = std::move(backend);
}

std::shared_ptr<MixerBackend> mixerBackend() {
    if (backendInFront() != nullptr) return backendInFront();
    SoundCard* const card = SoundSystem::card();
    return card == nullptr ? nullptr : card->mixer();
}

std::int32_t mixerGetNumDevs() {
    const auto card = mixerBackend();
    return card == nullptr ? 0 : static_cast<std::int32_t>(card->deviceNames().size());
}

MMRESULT mixerGetDevCapsA(std::int32_t device, MIXERCAPS& caps, std::int32_t size) {
    if (size != sizeof(MIXERCAPS)) return MMSYSERR_INVALPARAM;
    const auto card = mixerBackend();
    if (card == nullptr) return MMSYSERR_NODRIVER;
    const auto names = card->deviceNames();
    if (device < 0 || std::cmp_greater_equal(device, names.size())) return MMSYSERR_BADDEVICEID;
    caps = {};
    setText(caps.szPname, names[static_cast<std::size_t>(device)]);
    return MMSYSERR_NOERROR;
}

MMRESULT mixerOpen(HMIXER& mixer, std::int32_t device, HWND window, std::int32_t, std::int32_t flags) {
    static HMIXER lastHandle = 0;
    if (flags != 0 && (flags != CALLBACK_WINDOW || window == nullptr)) return MMSYSERR_INVALFLAG;
    const auto card = mixerBackend();
    if (card == nullptr) return MMSYSERR_NODRIVER;
    const HMIXER handle = lastHandle + 1;
    const MessagePost post = flags == 0 ? MessagePost([](const WindowMessage&) {}) : window->post();
    auto opened = card->open(device, [post, handle](const MixerChange& change) { post(messageOf(handle, change)); });
    if (opened == nullptr) return MMSYSERR_BADDEVICEID;
    mixer = lastHandle = handle;
    openMixers().emplace(handle, OpenMixer{std::move(opened), post});
    return MMSYSERR_NOERROR;
}

MMRESULT mixerClose(HMIXER mixer) {
    return openMixers().erase(mixer) == 1 ? MMSYSERR_NOERROR : MMSYSERR_INVALHANDLE;
}

MMRESULT mixerGetLineInfoA(HMIXER mixer, MIXERLINE& line, std::int32_t flags) {
    const OpenMixer* const open = openMixer(mixer);
    if (open == nullptr) return MMSYSERR_INVALHANDLE;
    if (line.cbStruct != MIXERLINE{}.cbStruct) return MMSYSERR_INVALPARAM;
    const auto lines = allLines(open->device->layout());
    const auto found =
        std::ranges::find_if(lines, [&](const LinePlace& place) { return isAskedFor(place, line, flags); });
    if (found == lines.end()) return MIXERR_INVALLINE;
    fill(line, *found);
    return MMSYSERR_NOERROR;
}

MMRESULT mixerGetLineControlsA(HMIXER mixer, MIXERLINECONTROLS& controls, std::int32_t flags) {
    const OpenMixer* const open = openMixer(mixer);
    if (open == nullptr) return MMSYSERR_INVALHANDLE;
    if (flags != MIXER_GETLINECONTROLSF_ONEBYTYPE) return MMSYSERR_INVALFLAG;
    const bool wellFormed = controls.cbStruct == MIXERLINECONTROLS{}.cbStruct && controls.pamxctrl != nullptr &&
                            controls.cbmxctrl == sizeof(MIXERCONTROL);
    if (!wellFormed) return MMSYSERR_INVALPARAM;
    const auto kind = kindOf(controls.dwControlType);
    if (!kind) return MIXERR_INVALCONTROL;
    const MixerControlPlace place{controls.dwLineID, *kind};
    const MixerControlInfo* const info = findControl(open->device->layout(), place);
    if (info == nullptr) return MIXERR_INVALCONTROL;
    fill(*controls.pamxctrl, place, *info);
    return MMSYSERR_NOERROR;
}

MMRESULT mixerGetControlDetailsA(HMIXER mixer, MIXERCONTROLDETAILS& details, std::int32_t flags) {
    const OpenMixer* const open = openMixer(mixer);
    if (open == nullptr) return MMSYSERR_INVALHANDLE;
    const MixerControlPlace place = placeOf(details.dwControlID);
    const MixerControlInfo* const info = findControl(open->device->layout(), place);
    if (info == nullptr) return MIXERR_INVALCONTROL;
    if (flags == MIXER_GETCONTROLDETAILSF_LISTTEXT) return readTexts(open->device->layout(), *info, details);
    if (flags != MIXER_GETCONTROLDETAILSF_VALUE) return MMSYSERR_INVALFLAG;
    return readValues(*open->device, place, *info, details);
}

MMRESULT mixerSetControlDetails(HMIXER mixer, const MIXERCONTROLDETAILS& details, std::int32_t flags) {
    const OpenMixer* const open = openMixer(mixer);
    if (open == nullptr) return MMSYSERR_INVALHANDLE;
    if (flags != MIXER_SETCONTROLDETAILSF_VALUE) return MMSYSERR_INVALFLAG;
    const MixerControlPlace place = placeOf(details.dwControlID);
    const MixerControlInfo* const info = findControl(open->device->layout(), place);
    if (info == nullptr) return MIXERR_INVALCONTROL;
    auto values = open->device->read(place);
    if (!values || values->empty()) return MMSYSERR_NODRIVER;
    const ValueShape shape = shapeOf(details, *info, values->size());
    if (shape == ValueShape::wrong) return MMSYSERR_INVALPARAM;
    std::int32_t first = 0;
    std::memcpy(&first, details.paDetails, sizeof first);
    if (shape == ValueShape::one) std::ranges::fill(*values, first);
    if (shape == ValueShape::each) std::memcpy(values->data(), details.paDetails, bytesOf(*values));
    if (!open->device->write(place, *values)) return MMSYSERR_NODRIVER;
    // A caller reckons with a message for everything that it sets, also when that stood so before.
    open->post(messageOf(mixer, {place.line, place.kind}));
    return MMSYSERR_NOERROR;
}

}  // namespace lyrebrook
