#include "platform/sound/cards/pulse/CaptureClock.h"

#include <gmock/gmock.h>

#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "platform/sound/RealTimeScope.h"

namespace lyrebrook {
namespace {

constexpr double millisecond = framesPerSecond / 1000.0;
constexpr Frames round = 441;
constexpr double sharpestOfTone = 45;

/// A tone by which the place of every frame can be told.
double tone(double place) {
    return 10000.0 * std::sin(place * 2 * std::numbers::pi * 440 / framesPerSecond);
}

/// An input that hears `tone(number)`, and the timeline that it is laid on.
class Desk final : private SoundCardClient {
  public:
    explicit Desk(double lead) : lead_(lead), expected_(static_cast<Frames>(lead)) {}

    /// Ten milliseconds of input, measured to be ahead by `lead`.
    void hear(double lead) {
        std::vector<StereoFrame> frames(static_cast<std::size_t>(round));
        for (StereoFrame& frame : frames) {
            const auto sample = static_cast<std::int16_t>(std::lrint(tone(static_cast<double>(heard_++))));
            frame = {sample, sample};
        }
        lead_ = lead;
        const RealTimeScope scope;
        clock.take(frames);
        clock.deliver(lead, *this);
    }

    void miss(Frames frames) {
        heard_ += frames;
        clock.lose(frames);
    }

    CaptureClock clock;
    Frames leaps = 0;      // frames that the place leapt over
    double worstTone = 0;  // farthest from the tone that belongs to the measured lead
    Frames delivered = 0;

    /// The sharpest bend so far; a click is sharper than the tone itself by far.
    double sharpest() const { return sharpest_; }

  private:
    Frames mixFrames(const SoundBuses&) noexcept override { return 0; }
    void framesSounded(Frames) noexcept override {}
    void framesCaptured(Frames place, std::span<const StereoFrame> frames) noexcept override {
        EXPECT_GE(place, expected_) << "places go back";
        leaps += place - expected_;
        for (std::size_t i = 0; i < frames.size(); ++i) {
            const double ideal = tone(static_cast<double>(place) + static_cast<double>(i) - lead_);
            worstTone = std::max(worstTone, std::abs(frames[i].left - ideal));
            sharpest_ = std::max(sharpest_, std::abs(frames[i].left - 2 * last_ + beforeLast_));
            beforeLast_ = std::exchange(last_, frames[i].left);
        }
        delivered += static_cast<Frames>(frames.size());
        expected_ = place + static_cast<Frames>(frames.size());
    }

    double lead_;
    Frames expected_;
    Frames heard_ = 0;
    double last_ = tone(-1);
    double beforeLast_ = tone(-2);
    double sharpest_ = 0;
};

/// How far the tone may be off when a place is off by so much.
double toneError(double frames) {
    return 10000.0 * frames * 2 * std::numbers::pi * 440 / framesPerSecond + 1;
}

TEST(CaptureClock, JitterOfTheMeasuringLeavesEveryFrameAsItIs) {
    Desk desk(1000);
    desk.hear(1000);
    for (int i = 0; i < 500; ++i) desk.hear(1000 + (i % 3 - 1) * 0.2 * millisecond);
    desk.worstTone = 0;
    desk.hear(1000);
    EXPECT_LE(desk.worstTone, 0.5);
    EXPECT_EQ(desk.leaps, 0);
}

class DriftingCaptureClock : public testing::TestWithParam<double> {};

TEST_P(DriftingCaptureClock, FollowsSmoothlyOverALongTake) {
    Desk desk(1000);
    constexpr int minutes = 2;
    double lead = 1000;
    for (int i = 0; i < minutes * 6000; ++i) {
        desk.hear(lead);
        lead += GetParam() * 1e-6 * static_cast<double>(round);
    }
    EXPECT_LE(desk.worstTone, toneError(0.35 * millisecond));
    EXPECT_LE(desk.sharpest(), sharpestOfTone);
    EXPECT_EQ(desk.leaps, 0);
    EXPECT_EQ(desk.clock.lost(), 0);
    const double whole = minutes * 60.0 * framesPerSecond + (lead - 1000);
    EXPECT_NEAR(static_cast<double>(desk.delivered), whole, millisecond);
}

INSTANTIATE_TEST_SUITE_P(Clocks, DriftingCaptureClock, testing::Values(100.0, -100.0, 300.0));

TEST(CaptureClock, AHoleIsSilenceOfTheSameLength) {
    Desk desk(0);
    desk.hear(0);
    desk.miss(3 * round);
    desk.hear(0);
    desk.worstTone = 0;
    for (int i = 0; i < 10; ++i) desk.hear(0);
    EXPECT_LE(desk.worstTone, 0.5);
    EXPECT_EQ(desk.clock.lost(), 3 * round);
    EXPECT_NEAR(static_cast<double>(desk.delivered), 15.0 * static_cast<double>(round), FrameGlide::from);
    EXPECT_EQ(desk.leaps, 0);
}

TEST(CaptureClock, SoundThatTheServerDroppedInSilenceMakesThePlaceLeap) {
    Desk desk(500);
    desk.hear(500);
    desk.hear(500 + 2000);
    EXPECT_EQ(desk.leaps, 2000);
    EXPECT_EQ(desk.clock.lost(), 2000);
    desk.hear(500);  // back again: what is doubled is left out
    for (int i = 0; i < 10; ++i) desk.hear(500);
    EXPECT_EQ(desk.leaps, 2000);
    desk.worstTone = 0;
    desk.hear(500);
    EXPECT_LE(desk.worstTone, 0.5);
}

TEST(CaptureClock, AnInputOpenedAnewJoinsBehindWhatWasThere) {
    Desk desk(0);
    for (int i = 0; i < 5; ++i) desk.hear(0);
    const Frames before = desk.delivered;
    desk.clock.restart();
    desk.hear(static_cast<double>(before) + 10000);
    EXPECT_EQ(desk.leaps, 10000);
    EXPECT_EQ(desk.clock.lost(), 10000);
    desk.clock.rest();
    desk.clock.restart();
    desk.hear(static_cast<double>(before) + 50000);
    EXPECT_GT(desk.leaps, 40000);
    EXPECT_EQ(desk.clock.lost(), 10000) << "nobody wanted what came meanwhile";
}

}  // namespace
}  // namespace lyrebrook
