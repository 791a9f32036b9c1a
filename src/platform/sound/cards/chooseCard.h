#pragma once

#include <memory>

#include "platform/sound/SoundCard.h"

namespace lyrebrook {

/// The card that the program works on: the user's own when a sound server answers within a second, else the embedded
/// one by the real clock. Never takes longer than that second.
std::unique_ptr<SoundCard> chooseCard();

}  // namespace lyrebrook
