#pragma once

#include <memory>

#include "platform/sound/MixerBackend.h"
#include "platform/winmm/MessageWindow.h"
#include "platform/winmm/mixerRecords.h"
#include "platform/winmm/winmmResults.h"

namespace lyrebrook {

/// The mixer functions, on the mixer of the card in use. The program's thread only; none of them waits for a server.

/// Puts another mixer in the place of the card's own, or with null takes it away again. Mixers that are open stay.
void setMixerBackend(std::shared_ptr<MixerBackend> backend);

/// The mixer in use; null when the card has none, or there is no card.
std::shared_ptr<MixerBackend> mixerBackend();

std::int32_t mixerGetNumDevs();
MMRESULT mixerGetDevCapsA(std::int32_t device, MIXERCAPS& caps, std::int32_t size);

/// With `CALLBACK_WINDOW` the window hears `MM_MIXM_LINE_CHANGE` and `MM_MIXM_CONTROL_CHANGE` from now on, of every
/// change, also by another program; changes of one control that come faster than the window listens are one message.
MMRESULT mixerOpen(HMIXER& mixer, std::int32_t device, HWND window, std::int32_t instance, std::int32_t flags);

/// What waits for the window then still reaches it.
MMRESULT mixerClose(HMIXER mixer);

MMRESULT mixerGetLineInfoA(HMIXER mixer, MIXERLINE& line, std::int32_t flags);
MMRESULT mixerGetLineControlsA(HMIXER mixer, MIXERLINECONTROLS& controls, std::int32_t flags);

/// Of a control that has a value for each channel, one channel alone reads the loudest and sets all.
MMRESULT mixerGetControlDetailsA(HMIXER mixer, MIXERCONTROLDETAILS& details, std::int32_t flags);
MMRESULT mixerSetControlDetails(HMIXER mixer, const MIXERCONTROLDETAILS& details, std::int32_t flags);

}  // namespace lyrebrook
