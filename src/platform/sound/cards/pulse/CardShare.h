#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>

#include "platform/sound/cards/CardLines.h"
#include "platform/sound/cards/CardNotice.h"
#include "platform/sound/cards/pulse/RecordingSource.h"

namespace lyrebrook {

/// What the program's thread and the card's thread tell each other.
struct CardShare {
    CardShare() = default;
    CardShare(const CardShare&) = delete;
    CardShare& operator=(const CardShare&) = delete;
    ~CardShare() { takeSelection(); }

    /// The latest selection counts. Never on the card's thread.
    void select(const RecordingSource& source) {
        const std::lock_guard lock(chosenMutex);
        chosenSource = source;
        const std::unique_ptr<RecordingSource> replaced(
            selection.exchange(std::make_unique<RecordingSource>(source).release()));
    }
    RecordingSource chosen() const {
        const std::lock_guard lock(chosenMutex);
        return chosenSource;
    }
    std::unique_ptr<RecordingSource> takeSelection() {
        return std::unique_ptr<RecordingSource>(selection.exchange(nullptr));
    }

    mutable std::mutex chosenMutex;
    RecordingSource chosenSource;

    /// Only the program's own two buses are in use of these.
    CardLines buses;

    // From the program's thread.
    std::atomic<bool> inputWanted{false};
    std::atomic<RecordingSource*> selection{nullptr};  // owned

    // From the card's thread.
    std::atomic<CardNotice> notice{CardNotice::none};
    std::atomic<std::int32_t> outputs{0};
    std::atomic<std::uint32_t> underruns{0};
    std::atomic<Frames> lostInput{0};
};

}  // namespace lyrebrook
