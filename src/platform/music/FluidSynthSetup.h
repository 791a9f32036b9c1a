#pragma once

#include <fluidsynth/types.h>

namespace lyrebrook {

/// Settings for a synthesizer that renders on the card's thread: no locks, no log, no threads of its own. They are the
/// caller's to delete, after the synthesizer.
fluid_settings_t* makeRealTimeSettings();

}  // namespace lyrebrook
