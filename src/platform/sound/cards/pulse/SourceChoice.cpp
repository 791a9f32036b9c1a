#include "platform/sound/cards/pulse/SourceChoice.h"

#include <utility>

namespace lyrebrook {

void SourceChoice::choose(const RecordingSource& source) {
    const std::lock_guard lock(mutex_);
    waiting_.reset();
    set(source);
}

void SourceChoice::follow(const RecordingSource& source) {
    const std::lock_guard lock(mutex_);
    if (held_) {
        waiting_ = source;
    } else {
        set(source);
    }
}

void SourceChoice::holdStill() {
    const std::lock_guard lock(mutex_);
    held_ = true;
}

bool SourceChoice::letGo() {
    const std::lock_guard lock(mutex_);
    held_ = false;
    const auto waited = std::exchange(waiting_, std::nullopt);
    if (waited) set(*waited);
    return waited.has_value();
}

RecordingSource SourceChoice::chosen() const {
    const std::lock_guard lock(mutex_);
    return chosen_;
}

std::unique_ptr<RecordingSource> SourceChoice::takeNews() noexcept {
    return std::unique_ptr<RecordingSource>(news_.exchange(nullptr));
}

void SourceChoice::set(const RecordingSource& source) {
    chosen_ = source;
    const std::unique_ptr<RecordingSource> replaced(
        news_.exchange(std::make_unique<RecordingSource>(source).release()));
}

}  // namespace lyrebrook
