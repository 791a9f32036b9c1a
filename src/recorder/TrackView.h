#pragma once

#include <cstdint>

namespace lyrebrook {

/// The lengths of the track view, all in twips. A tall picture of rows stands in the view's frame; in it, right of the
/// row heads, a window; in the window a wide picture with the bars, as wide as the zoom wants it. No sound is looked
/// at: a track is a bar of its length.
class TrackView {
  public:
    static constexpr double headsWidth = 1400;
    static constexpr double rowPitch = 400;
    static constexpr double barHeight = 350;
    static constexpr double margin = 100;  ///< left and right of the longest bar
    static constexpr std::int32_t scrollSteps = 1000;

    struct Size {
        double width = 0;
        double height = 0;
    };

    TrackView(Size frame, int rows, float zoom, std::int32_t songBytes);

    Size rows() const { return rows_; }
    Size window() const { return {rows_.width - headsWidth, rows_.height}; }
    Size picture() const { return picture_; }
    static double rowTop(int row) { return (row - 1) * rowPitch + 25; }

    /// How far the rows reach below the frame; 0 or less when all are seen.
    double below() const { return rows_.height - frame_.height; }

    /// Twips to a step of the horizontal bar; 0 or less when there is nothing to scroll.
    float scrollScale() const { return scrollScale_; }
    double pictureLeft(std::int32_t step) const { return -step * static_cast<double>(scrollScale_); }

    /// Length of a stretch of sound on the picture; 0 in a song without length.
    double widthOf(std::int32_t bytes) const;

    /// The value of the zoom slider as a zoom; 1 shows the song as wide as the window.
    static float zoomAt(std::int32_t sliderValue) { return static_cast<float>(sliderValue + 5) / 55; }

  private:
    Size frame_;
    Size rows_;
    Size picture_;
    float scrollScale_;
    float bytesPerTwip_;
};

/// The longest track's bar, on which places in the song are measured.
struct SongBar {
    double width = 0;
    std::int32_t songBytes = 0;

    double twipsPerByte() const { return songBytes == 0 ? 0 : width / songBytes; }
    double cursorX(std::int32_t playPos) const;

    /// The place in the song under the mouse, held to 0 to 1.
    double fractionAt(double mouseX) const;
};

}  // namespace lyrebrook
