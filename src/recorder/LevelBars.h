#pragma once

#include <cstdint>
#include <optional>

namespace lyrebrook {

class DirectSoundCaptureBuffer8;

/// The two bars that show the level which reaches the card, as widths in twips. A bar jumps up at once and only falls
/// by `DecayVU`, fast from the top and slowly near the bottom. Both recording screens have one; when its buffer is made
/// and dropped is theirs. Program's thread.
class LevelBars {
  public:
    static constexpr double fullWidth = 1695;
    static constexpr double restWidth = 115;  ///< no decay at or below it

    /// Mean absolute sample values of a block, 0 to 32768.
    struct Averages {
        double left = 0;
        double right = 0;
    };

    /// Raises the bars to the level of the last 4096 bytes captured, and tells it; nothing happens before there are as
    /// many.
    std::optional<Averages> UpdateVU(const DirectSoundCaptureBuffer8& buffer);
    void DecayVU();

    double left() const { return left_; }
    double right() const { return right_; }

    /// Width for a mean absolute sample value, 0 to 32768.
    static double widthOf(double average);

  private:
    double left_ = restWidth;
    double right_ = restWidth;
};

}  // namespace lyrebrook
