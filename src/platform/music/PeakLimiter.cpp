#include "platform/music/PeakLimiter.h"

#include <algorithm>
#include <cmath>

namespace lyrebrook {
namespace {

constexpr float ceiling = 0.97F;
constexpr float riseOfABlock = 0.008F;  // of what is missing; 63 % of the way in about 0.2 s

float peakOf(const PeakLimiter::Block& block) {
    float peak = 0;
    for (const float sample : block) peak = std::max(peak, std::abs(sample));
    return peak;
}

}  // namespace

// The gain runs in a straight line through the block. Both its ends are safe for the block: the first was chosen with
// this block as the next one.
void PeakLimiter::apply(Block& block, const Block& next) noexcept {
    const float peak = std::max(peakOf(block), peakOf(next));
    const float safe = peak > ceiling ? ceiling / peak : 1;
    const float until = std::min(safe, gain_ + (1 - gain_) * riseOfABlock);
    if (gain_ < 1 || until < 1) {
        const float step = (until - gain_) / blockFrames;
        for (std::size_t frame = 0; frame < blockFrames; ++frame) {
            const float gain = gain_ + step * static_cast<float>(frame);
            block[2 * frame] *= gain;
            block[2 * frame + 1] *= gain;
        }
    }
    gain_ = until > 0.9999F ? 1 : until;
}

}  // namespace lyrebrook
