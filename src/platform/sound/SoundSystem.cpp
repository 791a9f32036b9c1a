#include "platform/sound/SoundSystem.h"

#include "platform/base/RuntimeError.h"

namespace lyrebrook {
namespace {

struct Installed {
    std::unique_ptr<SoundCard> card;
    std::shared_ptr<SoundEngine> engine;
};

Installed& installed() {
    static Installed theOne;
    return theOne;
}

}  // namespace

void SoundSystem::install(std::unique_ptr<SoundCard> card) {
    remove();
    installed().card = std::move(card);
    installed().engine = std::make_shared<SoundEngine>(*installed().card);
}

void SoundSystem::remove() {
    if (installed().engine != nullptr) installed().engine->leaveCard();
    installed().engine.reset();
    installed().card.reset();
}

std::shared_ptr<SoundEngine> SoundSystem::engine() {
    if (installed().engine != nullptr) return installed().engine;
    throw RuntimeError(RuntimeErrorNumber::deviceUnavailable, "There is no sound card");
}

SoundCard* SoundSystem::card() {
    return installed().card.get();
}

}  // namespace lyrebrook
