#pragma once

#include <array>
#include <cstdint>

namespace lyrebrook {

/// Records and constants of the mixer functions. A record without an address in it is laid out as published; the two
/// that carry an address are longer here by the host's width of it, and their `cbStruct` still is the published size.

inline constexpr std::int32_t MIXERLINE_COMPONENTTYPE_DST_SPEAKERS = 4;
inline constexpr std::int32_t MIXERLINE_COMPONENTTYPE_DST_WAVEIN = 7;
inline constexpr std::int32_t MIXERLINE_COMPONENTTYPE_SRC_LINE = 0x1002;
inline constexpr std::int32_t MIXERLINE_COMPONENTTYPE_SRC_MICROPHONE = 0x1003;
inline constexpr std::int32_t MIXERLINE_COMPONENTTYPE_SRC_SYNTHESIZER = 0x1004;
inline constexpr std::int32_t MIXERLINE_COMPONENTTYPE_SRC_COMPACTDISC = 0x1005;
inline constexpr std::int32_t MIXERLINE_COMPONENTTYPE_SRC_WAVEOUT = 0x1008;
inline constexpr std::int32_t MIXERLINE_COMPONENTTYPE_SRC_AUXILIARY = 0x1009;
inline constexpr std::int32_t MIXERLINE_COMPONENTTYPE_SRC_ANALOG = 0x100A;

inline constexpr std::int32_t MIXERCONTROL_CONTROLTYPE_VOLUME = 0x50030001;
inline constexpr std::int32_t MIXERCONTROL_CONTROLTYPE_MUTE = 0x20010002;
inline constexpr std::int32_t MIXERCONTROL_CONTROLTYPE_MIXER = 0x71010001;
inline constexpr std::int32_t MIXERCONTROL_CONTROLTYPE_MUX = 0x70010001;
inline constexpr std::int32_t MIXERCONTROL_CONTROLTYPE_PEAKMETER = 0x10020001;

inline constexpr std::int32_t MIXER_GETLINEINFOF_SOURCE = 1;
inline constexpr std::int32_t MIXER_GETLINEINFOF_LINEID = 2;
inline constexpr std::int32_t MIXER_GETLINEINFOF_COMPONENTTYPE = 3;
inline constexpr std::int32_t MIXER_GETLINECONTROLSF_ONEBYTYPE = 2;
inline constexpr std::int32_t MIXER_GETCONTROLDETAILSF_VALUE = 0;
inline constexpr std::int32_t MIXER_GETCONTROLDETAILSF_LISTTEXT = 1;
inline constexpr std::int32_t MIXER_SETCONTROLDETAILSF_VALUE = 0;

/// To the window of an open mixer. `wParam` is its handle, `lParam` the ID of the line or of the control.
inline constexpr std::int32_t MM_MIXM_LINE_CHANGE = 0x3D0;
inline constexpr std::int32_t MM_MIXM_CONTROL_CHANGE = 0x3D1;

/// An open mixer; 0 is none.
using HMIXER = std::int32_t;

struct MIXERCAPS {
    std::int16_t wMid = 0;
    std::int16_t wPid = 0;
    std::int32_t vDriverVersion = 0;
    std::array<char, 32> szPname{};
    std::int32_t fdwSupport = 0;
    std::int32_t cDestinations = 0;
};
static_assert(sizeof(MIXERCAPS) == 48);

struct MIXERLINETARGET {
    std::int32_t dwType = 0;
    std::int32_t dwDeviceID = 0;
    std::int16_t wMid = 0;
    std::int16_t wPid = 0;
    std::int32_t vDriverVersion = 0;
    std::array<char, 32> szPname{};
};

struct MIXERLINE {
    std::int32_t cbStruct = 168;
    std::int32_t dwDestination = 0;
    std::int32_t dwSource = 0;
    std::int32_t dwLineID = 0;
    std::int32_t fdwLine = 0;
    std::int32_t dwUser = 0;
    std::int32_t dwComponentType = 0;
    std::int32_t cChannels = 0;
    std::int32_t cConnections = 0;
    std::int32_t cControls = 0;
    std::array<char, 16> szShortName{};
    std::array<char, 64> szName{};
    MIXERLINETARGET Target{};
};
static_assert(sizeof(MIXERLINE) == 168);

struct MIXERCONTROL {
    std::int32_t cbStruct = 148;
    std::int32_t dwControlID = 0;
    std::int32_t dwControlType = 0;
    std::int32_t fdwControl = 0;
    std::int32_t cMultipleItems = 0;
    std::array<char, 16> szShortName{};
    std::array<char, 64> szName{};
    std::int32_t dwMinimum = 0;
    std::int32_t dwMaximum = 0;
    std::array<std::int32_t, 4> reservedBounds{};
    std::int32_t cSteps = 0;
    std::array<std::int32_t, 5> reservedMetrics{};
};
static_assert(sizeof(MIXERCONTROL) == 148);

struct MIXERLINECONTROLS {
    std::int32_t cbStruct = 24;
    std::int32_t dwLineID = 0;
    std::int32_t dwControlType = 0;
    std::int32_t cControls = 1;
    std::int32_t cbmxctrl = 148;
    MIXERCONTROL* pamxctrl = nullptr;
};

/// `paDetails` is the caller's block: `cbDetails` bytes for each item of each channel.
struct MIXERCONTROLDETAILS {
    std::int32_t cbStruct = 24;
    std::int32_t dwControlID = 0;
    std::int32_t cChannels = 1;
    std::int32_t cMultipleItems = 0;
    std::int32_t cbDetails = 4;
    void* paDetails = nullptr;
};

struct MIXERCONTROLDETAILS_UNSIGNED {
    std::int32_t dwValue = 0;
};
static_assert(sizeof(MIXERCONTROLDETAILS_UNSIGNED) == 4);

struct MIXERCONTROLDETAILS_BOOLEAN {
    std::int32_t fValue = 0;
};
static_assert(sizeof(MIXERCONTROLDETAILS_BOOLEAN) == 4);

/// An item of a selection; `dwParam1` is the ID of the line.
struct MIXERCONTROLDETAILS_LISTTEXT {
    std::int32_t dwParam1 = 0;
    std::int32_t dwParam2 = 0;
    std::array<char, 64> szName{};
};
static_assert(sizeof(MIXERCONTROLDETAILS_LISTTEXT) == 72);

}  // namespace lyrebrook
