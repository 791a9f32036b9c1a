#pragma once

#include <memory>

#include "platform/sound/SoundCard.h"
#include "platform/sound/SoundEngine.h"

namespace lyrebrook {

/// The process's one card and engine. The program's thread only. `install` replaces what was there before.
class SoundSystem {
  public:
    static void install(std::unique_ptr<SoundCard> card);

    /// Stops and destroys the card. Objects that hold the engine stay usable and silent.
    static void remove();

    /// RuntimeError `deviceUnavailable` when no card is installed. Shared, because sound objects may outlive the card.
    static std::shared_ptr<SoundEngine> engine();

    /// Nothing when no card is installed.
    static SoundCard* card();
};

}  // namespace lyrebrook
