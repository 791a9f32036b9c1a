#include "recorder/LevelBars.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "platform/sound/DirectSoundCaptureBuffer8.h"

namespace lyrebrook {
namespace {

constexpr std::int32_t blockBytes = 4096;
constexpr std::size_t blockFrames = blockBytes / bytesPerFrame;

double decayed(double width) {
    constexpr double divisor = 20000;
    return width > LevelBars::restWidth ? width - width * width / divisor : width;
}

}  // namespace

std::optional<LevelBars::Averages> LevelBars::UpdateVU(const DirectSoundCaptureBuffer8& buffer) {
    DSCURSORS cursors;
    buffer.GetCurrentPosition(cursors);
    if (cursors.lWrite < blockBytes) return {};
    std::array<StereoFrame, blockFrames> block{};
    buffer.ReadBuffer(cursors.lWrite - blockBytes, blockBytes, std::as_writable_bytes(std::span(block)), 0);
    std::int64_t leftSum = 0;
    std::int64_t rightSum = 0;
    for (const StereoFrame& frame : block) {
        leftSum += std::abs(frame.left);
        rightSum += std::abs(frame.right);
    }
    const Averages averages{static_cast<double>(leftSum) / blockFrames, static_cast<double>(rightSum) / blockFrames};
    left_ = std::max(left_, widthOf(averages.left));
    right_ = std::max(right_, widthOf(averages.right));
    return averages;
}

void LevelBars::DecayVU() {
    left_ = decayed(left_);
    right_ = decayed(right_);
}

double LevelBars::widthOf(double average) {
    constexpr double offset = 10.4;
    constexpr double factor = 163;
    return std::min((std::log((average + 1) / 32768) + offset) * factor, fullWidth);
}

}  // namespace lyrebrook
