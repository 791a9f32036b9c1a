#include "platform/music/PeakLimiter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace lyrebrook {
namespace {

using Blocks = std::vector<PeakLimiter::Block>;

Blocks limited(const std::vector<float>& levels) {
    Blocks blocks(levels.size());
    for (std::size_t i = 0; i < levels.size(); ++i) blocks[i].fill(levels[i]);
    PeakLimiter limiter;
    for (std::size_t i = 0; i + 1 < blocks.size(); ++i) limiter.apply(blocks[i], blocks[i + 1]);
    blocks.pop_back();
    return blocks;
}

TEST(PeakLimiter, TurnsDownInTimeAndLeavesQuietMusicAlone) {
    const Blocks blocks = limited({0.5F, 0.5F, 4, 0.9F, 8, 8, 0.1F, 0.1F});
    EXPECT_EQ(blocks[0], limited({0.5F, 0})[0]);
    for (const auto& block : blocks) {
        for (const float sample : block) EXPECT_LE(sample, 1.0F);
    }
    EXPECT_GT(blocks[4].back(), 0.9F);
}

TEST(PeakLimiter, ComesBackWithinASecond) {
    std::vector<float> levels(700, 0.5F);
    levels[1] = 5;
    const Blocks blocks = limited(levels);
    EXPECT_LT(blocks[10].front(), 0.2F);
    EXPECT_NEAR(blocks.back().front(), 0.5F, 0.01F);
}

}  // namespace
}  // namespace lyrebrook
