#include "platform/winmm/waveOut.h"

#include "platform/sound/SoundSystem.h"

namespace lyrebrook {

std::int32_t waveOutGetNumDevs() {
    const SoundCard* card = SoundSystem::card();
    return card ? card->outputCount() : 0;
}

}  // namespace lyrebrook
