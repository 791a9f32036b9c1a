#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

namespace lyrebrook {

/// The median of what was measured of late, so that one look in several may be far off without doing harm.
class RecentMedian {
  public:
    void restart() { seen_ = 0; }

    void see(double value) {
        values_[seen_ % window] = value;
        ++seen_;
    }

    bool settled() const { return seen_ >= enough; }

    /// There has to be something seen.
    double value() const {
        std::array<double, window> sorted = values_;
        const auto end = sorted.begin() + static_cast<std::ptrdiff_t>(std::min(seen_, window));
        const auto middle = sorted.begin() + (end - sorted.begin()) / 2;
        std::nth_element(sorted.begin(), middle, end);
        return *middle;
    }

  private:
    static constexpr std::size_t window = 15;
    static constexpr std::size_t enough = 5;

    std::array<double, window> values_{};
    std::size_t seen_ = 0;
};

}  // namespace lyrebrook
