#pragma once

#include <readerwriterqueue/readerwriterqueue.h>

#include <atomic>
#include <cstdint>

#include "platform/sound/cards/CardNotice.h"
#include "platform/sound/cards/pulse/RecordingSource.h"

namespace lyrebrook {

/// What the program's thread and the card's thread tell each other.
struct CardShare {
    // From the program's thread.
    std::atomic<bool> inputWanted{false};
    moodycamel::ReaderWriterQueue<RecordingSource> selections{8};

    // From the card's thread.
    std::atomic<CardNotice> notice{CardNotice::none};
    std::atomic<std::int32_t> outputs{0};
    std::atomic<std::uint32_t> underruns{0};
    std::atomic<Frames> lostInput{0};
};

}  // namespace lyrebrook
