#include "platform/sound/cards/chooseCard.h"

#include <chrono>

#include "platform/sound/cards/PulseCard.h"
#include "platform/sound/cards/VirtualCard.h"

namespace lyrebrook {

std::unique_ptr<SoundCard> chooseCard() {
    auto card = std::make_unique<PulseCard>();
    // What is left of the second is for taking the attempt down.
    if (card->reachServer(std::chrono::milliseconds(950))) return card;
    return std::make_unique<VirtualCard>(VirtualCard::Clock::realTime);
}

}  // namespace lyrebrook
