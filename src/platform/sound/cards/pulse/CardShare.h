#pragma once

#include <atomic>
#include <cstdint>

#include "platform/sound/cards/CardLines.h"
#include "platform/sound/cards/CardNotice.h"
#include "platform/sound/cards/pulse/SourceChoice.h"

namespace lyrebrook {

/// What the program's thread and the card's thread tell each other.
struct CardShare {
    SourceChoice source;

    /// Only the program's own two buses are in use of these.
    CardLines buses;

    // From the program's thread.
    std::atomic<bool> inputWanted{false};

    // From the card's thread.
    std::atomic<CardNotice> notice{CardNotice::none};
    std::atomic<std::int32_t> outputs{0};
    std::atomic<std::uint32_t> underruns{0};
    std::atomic<Frames> lostInput{0};
};

}  // namespace lyrebrook
