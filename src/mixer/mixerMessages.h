#pragma once

#include "platform/winmm/MessageWindow.h"
#include "platform/winmm/waveIn.h"

namespace lyrebrook {

/// What stood at the mixer screen's window before `mixerWindowProc` was put in front of it; null when that isn't there.
extern WindowProcedure gOldWindowProc;

/// Refreshes the panels when the mixer changed, and takes in what the capture path recorded. Every message goes on to
/// the former procedure.
LRESULT mixerWindowProc(HWND window, std::int32_t message, WPARAM wParam, LPARAM lParam);

/// Closes an input, also one that isn't there, and waits until its window heard of it.
void closeWaveIn(HWAVEIN& handle);

}  // namespace lyrebrook
