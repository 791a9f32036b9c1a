#include "platform/sound/SoundSystem.h"

#include "platform/base/RuntimeError.h"

namespace lyrebrook {
namespace {

struct Installed {
    std::unique_ptr<SoundCard> card;
    std::shared_ptr<SoundEngine> engine;

    Installed() = default;
    Installed(const Installed&) = delete;
    Installed& operator=(const Installed&) = delete;
    ~Installed() { clear(); }

    /// Others may still hold the engine, so it has to let go of the card before the card goes.
    void clear() {
        if (engine != nullptr) engine->leaveCard();
        engine.reset();
        card.reset();
    }
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
    installed().clear();
}

std::shared_ptr<SoundEngine> SoundSystem::engine() {
    if (installed().engine != nullptr) return installed().engine;
    throw RuntimeError(RuntimeErrorNumber::deviceUnavailable, "There is no sound card");
}

SoundCard* SoundSystem::card() {
    return installed().card.get();
}

}  // namespace lyrebrook
