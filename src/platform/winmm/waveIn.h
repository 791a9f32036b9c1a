#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "platform/sound/SoundFormat.h"
#include "platform/winmm/MessageWindow.h"
#include "platform/winmm/winmmResults.h"

namespace lyrebrook {

/// The wave-in functions: sound of the card's input, whatever the mixer has selected there, in buffers of the caller's.
/// The card's input is open from `waveInOpen` to `waveInClose` only. The program's thread only.

/// An open input; 0 is none.
using HWAVEIN = std::int32_t;

/// The device that stands for whichever is there.
inline constexpr std::int32_t WAVE_MAPPER = -1;

inline constexpr std::int32_t WAVE_FORMAT_1M08 = 0x1;
inline constexpr std::int32_t WAVE_FORMAT_1S08 = 0x2;
inline constexpr std::int32_t WAVE_FORMAT_1M16 = 0x4;
inline constexpr std::int32_t WAVE_FORMAT_1S16 = 0x8;
inline constexpr std::int32_t WAVE_FORMAT_2M08 = 0x10;
inline constexpr std::int32_t WAVE_FORMAT_2S08 = 0x20;
inline constexpr std::int32_t WAVE_FORMAT_2M16 = 0x40;
inline constexpr std::int32_t WAVE_FORMAT_2S16 = 0x80;
inline constexpr std::int32_t WAVE_FORMAT_4M08 = 0x100;
inline constexpr std::int32_t WAVE_FORMAT_4S08 = 0x200;
inline constexpr std::int32_t WAVE_FORMAT_4M16 = 0x400;
inline constexpr std::int32_t WAVE_FORMAT_4S16 = 0x800;

/// To the window of an open input. `wParam` is its handle; with `MM_WIM_DATA` `lParam` is the address of the `WAVEHDR`.
inline constexpr std::int32_t MM_WIM_OPEN = 0x3BE;
inline constexpr std::int32_t MM_WIM_CLOSE = 0x3BF;
inline constexpr std::int32_t MM_WIM_DATA = 0x3C0;

struct WAVEINCAPS {
    std::int16_t wMid = 0;
    std::int16_t wPid = 0;
    std::int32_t vDriverVersion = 0;
    std::array<char, 32> szPname{};
    std::int32_t dwFormats = 0;
    std::int16_t wChannels = 0;
    std::int16_t wReserved1 = 0;
};
static_assert(sizeof(WAVEINCAPS) == 48);

inline constexpr std::int32_t WHDR_DONE = 1;
inline constexpr std::int32_t WHDR_PREPARED = 2;
inline constexpr std::int32_t WHDR_INQUEUE = 16;

/// A buffer of the caller's, who leaves it and its sound in place while it is in the queue.
struct WAVEHDR {
    std::byte* lpData = nullptr;
    std::int32_t dwBufferLength = 0;
    std::int32_t dwBytesRecorded = 0;
    std::int32_t dwUser = 0;
    std::int32_t dwFlags = 0;
    std::int32_t dwLoops = 0;
    std::int32_t reserved = 0;
};
static_assert(sizeof(WAVEHDR) == 32);

std::int32_t waveInGetNumDevs();
MMRESULT waveInGetDevCapsA(std::int32_t device, WAVEINCAPS& caps, std::int32_t size);

/// What an input is opened as: one of the twelve formats that its capabilities tell, and the window that hears of it.
struct WaveInOpening {
    std::int32_t device = WAVE_MAPPER;
    WAVEFORMATEX format = trackFormat();
    HWND window = nullptr;
    std::int32_t flags = CALLBACK_WINDOW;
};
MMRESULT waveInOpen(HWAVEIN& input, const WaveInOpening& opening);

/// Not while buffers are in the queue.
MMRESULT waveInClose(HWAVEIN input);

MMRESULT waveInPrepareHeader(HWAVEIN input, WAVEHDR& header, std::int32_t size);
MMRESULT waveInUnprepareHeader(HWAVEIN input, WAVEHDR& header, std::int32_t size);

/// A buffer comes back with `MM_WIM_DATA` when it is full, and then has to be added anew.
MMRESULT waveInAddBuffer(HWAVEIN input, WAVEHDR& header, std::int32_t size);

/// What comes while no buffer is in the queue is lost.
MMRESULT waveInStart(HWAVEIN input);

/// The buffer that is being filled comes back as it is.
MMRESULT waveInStop(HWAVEIN input);

/// Stops, and all buffers come back.
MMRESULT waveInReset(HWAVEIN input);

}  // namespace lyrebrook
