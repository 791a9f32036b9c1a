#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>

#include "platform/sound/cards/pulse/RecordingSource.h"

namespace lyrebrook {

/// Which source a card records, as the person at the mixer and other programs choose it. What another program chooses
/// while a recording runs counts when that is over: half a take from another source is of no use to anybody.
/// Any thread, except where an entry says so.
class SourceChoice {
  public:
    SourceChoice() = default;
    ~SourceChoice() { takeNews(); }
    SourceChoice(const SourceChoice&) = delete;
    SourceChoice& operator=(const SourceChoice&) = delete;

    /// The person's choice, at once.
    void choose(const RecordingSource& source);

    /// Another program's.
    void follow(const RecordingSource& source);

    void holdStill();

    /// The recording is over. True when a choice had to wait for that.
    bool letGo();

    RecordingSource chosen() const;

    /// For the card's thread, which doesn't wait: the latest choice since the last call, or null.
    std::unique_ptr<RecordingSource> takeNews() noexcept;

  private:
    void set(const RecordingSource& source);

    mutable std::mutex mutex_;
    RecordingSource chosen_;
    std::optional<RecordingSource> waiting_;
    bool held_ = false;
    std::atomic<RecordingSource*> news_{nullptr};  // owned
};

}  // namespace lyrebrook
