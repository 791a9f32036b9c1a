#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace lyrebrook {

/// A fixed delay: at the position stands the sound of `frames` frames ago, and the new sound takes its place. Memory is
/// reserved when it is made; the rest is for the card's thread. At most `frames` frames at a time.
class DelayLine {
  public:
    explicit DelayLine(std::size_t frames) : samples_(frames) {}

    /// Copies out the oldest `count` frames and leaves them in place.
    void peek(float* out, std::size_t count) const noexcept {
        const std::size_t first = std::min(count, samples_.size() - position_);
        std::copy_n(samples_.data() + position_, first, out);
        std::copy_n(samples_.data(), count - first, out + first);
    }

    /// Hands the oldest `count` frames to `exchange(stored, at, frames)` in one or two pieces, `at` being the place of
    /// the piece among them. What it leaves in `stored` is the new sound.
    template <typename Exchange>
    void pass(std::size_t count, Exchange exchange) noexcept {
        const std::size_t first = std::min(count, samples_.size() - position_);
        exchange(samples_.data() + position_, std::size_t{0}, first);
        if (first < count) exchange(samples_.data(), first, count - first);
        position_ += count;
        if (position_ >= samples_.size()) position_ -= samples_.size();
    }

    void clear() noexcept { std::fill(samples_.begin(), samples_.end(), 0.0F); }

  private:
    std::vector<float> samples_;
    std::size_t position_ = 0;
};

}  // namespace lyrebrook
