#include "platform/sound/cards/pulse/StreamPosition.h"

#include <gtest/gtest.h>

#include <random>

namespace lyrebrook {
namespace {

using namespace std::chrono_literals;

TEST(StreamPosition, GoesByOurClockUntilTheServerTells) {
    StreamPosition position;
    const CardMoment begun = CardMoment{} + 5s;
    position.restart(begun, 100);
    EXPECT_DOUBLE_EQ(position.at(begun + 2s), 100.0 + 2 * framesPerSecond);
}

/// One look in four comes up to 20 ms late, and the device's clock is fast by a ten-thousandth.
TEST(StreamPosition, LateLooksAndAFastClockLeaveItWithinAMillisecond) {
    StreamPosition position;
    const CardMoment begun;
    position.restart(begun, 0);
    std::mt19937 random(7);
    for (int look = 1; look <= 3000; ++look) {
        const CardMoment moment = begun + look * 100ms;
        const double late = look % 4 == 0 ? static_cast<double>(random() % 882) : 0.0;
        const double truth = framesIn(moment - begun) * 1.0001;
        position.see(moment, truth - late);
        if (look >= 10) {
            EXPECT_NEAR(position.at(moment), truth, framesPerSecond / 1000.0);
        }
    }
}

}  // namespace
}  // namespace lyrebrook
