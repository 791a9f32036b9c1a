#pragma once

#include <array>
#include <cstddef>

#include "platform/sound/effects/Glide.h"
#include "platform/sound/effects/ReverbSlice.h"

namespace lyrebrook {

/// The loss that each delay line takes once a round, chosen so that the sound of every line falls by 60 dB in the same
/// time: `milliseconds` up to about 2.5 kHz, `highRatio` of it from about 10 kHz on. A second-order shelf per line, all
/// with the same poles, so that only the zeros move. The card's thread only.
class AbsorptionBank {
  public:
    explicit AbsorptionBank(const std::array<std::size_t, reverbLines>& delays) : delays_(delays) {}

    void setDecay(float milliseconds, float highRatio, Change change) noexcept;

    /// Takes each line's loss off in place.
    void process(LineSlices& lines, std::size_t frames) noexcept;

    void clear() noexcept;

  private:
    using Lanes = std::array<float, reverbLines>;

    void designLine(std::size_t line, float milliseconds, float highRatio) noexcept;
    void glide(std::size_t frames) noexcept;
    void keepForNextSlice(std::size_t frames) noexcept;

    // Lines lie side by side within a frame, so that one instruction serves several lines: a recursion can't be spread
    // over several frames. The first two rows are the end of the slice before.
    static constexpr std::size_t history = 2;
    template <std::size_t rows>
    using LaneRows = std::array<Lanes, rows>;

    std::array<std::size_t, reverbLines> delays_;
    alignas(16) std::array<Lanes, 3> zeros_{};
    alignas(16) std::array<Lanes, 3> zerosWanted_{};
    alignas(16) LaneRows<history + sliceFrames> in_{};
    alignas(16) LaneRows<history + sliceFrames> out_{};
};

}  // namespace lyrebrook
