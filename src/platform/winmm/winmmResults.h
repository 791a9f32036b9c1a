#pragma once

#include <cstdint>

namespace lyrebrook {

/// What the functions of this folder return: 0, or why they did nothing.
using MMRESULT = std::int32_t;

inline constexpr MMRESULT MMSYSERR_NOERROR = 0;
inline constexpr MMRESULT MMSYSERR_BADDEVICEID = 2;
inline constexpr MMRESULT MMSYSERR_INVALHANDLE = 5;
inline constexpr MMRESULT MMSYSERR_NODRIVER = 6;
inline constexpr MMRESULT MMSYSERR_NOMEM = 7;
inline constexpr MMRESULT MMSYSERR_INVALFLAG = 10;
inline constexpr MMRESULT MMSYSERR_INVALPARAM = 11;
inline constexpr MMRESULT WAVERR_BADFORMAT = 32;
inline constexpr MMRESULT WAVERR_STILLPLAYING = 33;
inline constexpr MMRESULT WAVERR_UNPREPARED = 34;
inline constexpr MMRESULT MIXERR_INVALLINE = 1024;
inline constexpr MMRESULT MIXERR_INVALCONTROL = 1025;

/// Messages reach the window that the device was opened for.
inline constexpr std::int32_t CALLBACK_WINDOW = 0x10000;

}  // namespace lyrebrook
