#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <utility>

#include "platform/sound/cards/CardNotice.h"
#include "platform/sound/cards/pulse/RecordingSource.h"

namespace lyrebrook {

/// What the program's thread and the card's thread tell each other.
struct CardShare {
    CardShare() = default;
    CardShare(const CardShare&) = delete;
    CardShare& operator=(const CardShare&) = delete;
    ~CardShare() { takeSelection(); }

    /// The latest selection counts.
    void select(RecordingSource source) {
        const std::unique_ptr<RecordingSource> replaced(
            selection.exchange(std::make_unique<RecordingSource>(std::move(source)).release()));
    }
    std::unique_ptr<RecordingSource> takeSelection() {
        return std::unique_ptr<RecordingSource>(selection.exchange(nullptr));
    }

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
