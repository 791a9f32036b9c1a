#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/sound/SoundFormat.h"

namespace lyrebrook {

/// Reads frames in a row, and now and then puts one more in or leaves one out without a click: over `length` frames
/// the reading place glides by one frame, 0.05 percent of the pitch. In between, frames pass as they are. Memory is
/// taken when it is made.
class FrameGlide {
  public:
    static constexpr std::size_t length = 2048;
    /// Frames around a reading place that have to be there: so many before it, and so many from it on.
    static constexpr std::size_t before = 7;
    static constexpr std::size_t from = 9;

    enum class Kind : std::int8_t { none, oneMore, oneLess };

    FrameGlide();

    bool gliding() const { return kind_ != Kind::none; }
    void begin(Kind kind) { kind_ = kind; }
    void stop();

    /// The frame at the reading place; `around` holds the frames around it.
    StereoFrame read(std::span<const StereoFrame, before + from> around) const noexcept;

    /// Goes on by one frame of the output; tells by how many of the input.
    std::size_t advance() noexcept;

  private:
    static constexpr std::size_t taps = before + from;

    std::vector<std::array<float, taps>> weights_;  // by phase
    Kind kind_ = Kind::none;
    std::size_t phase_ = 0;  // how far the place lies behind a frame, in 1/length
};

}  // namespace lyrebrook
