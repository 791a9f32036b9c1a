#include "recorder/TrackView.h"

#include <algorithm>

namespace lyrebrook {

TrackView::TrackView(Size frame, int rows, float zoom, std::int32_t songBytes)
    : frame_(frame), rows_{frame.width - 50, rows * rowPitch + 100} {
    picture_ = {(window().width - 50) * static_cast<double>(zoom), rows_.height};
    scrollScale_ = static_cast<float>((picture_.width - window().width + 50) / scrollSteps);
    bytesPerTwip_ = static_cast<float>(songBytes / (picture_.width - 2 * margin));
}

double TrackView::widthOf(std::int32_t bytes) const {
    return bytesPerTwip_ == 0 ? 0 : bytes / static_cast<double>(bytesPerTwip_);
}

double SongBar::cursorX(std::int32_t playPos) const {
    return (songBytes == 0 ? 0 : static_cast<double>(playPos) / songBytes * width) + TrackView::margin;
}

double SongBar::fractionAt(double mouseX) const {
    if (width <= 0) return 0;
    return std::clamp((mouseX - TrackView::margin) / width, 0.0, 1.0);
}

}  // namespace lyrebrook
