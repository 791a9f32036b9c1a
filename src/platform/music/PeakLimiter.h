#pragma once

#include <array>
#include <cstddef>

namespace lyrebrook {

/// Keeps loud music below full scale without clipping it: turns down, within a block, before a peak that the next one
/// brings, and up again over half a second. What is below the ceiling all the time passes unchanged. Allocates nothing.
class PeakLimiter {
  public:
    static constexpr std::size_t blockFrames = 64;
    using Block = std::array<float, 2 * blockFrames>;

    void apply(Block& block, const Block& next) noexcept;

  private:
    float gain_ = 1;
};

}  // namespace lyrebrook
