#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "integration/support/ServerDesk.h"

namespace lyrebrook {
namespace {

constexpr Frames takeLength = 30 * framesPerSecond;
constexpr double millisecond = framesPerSecond / 1000.0;

/// A click track that plays and a take that records the monitor, for some time already.
class DeviceLoss : public testing::TestWithParam<ServerKind> {
  protected:
    DeviceLoss() : desk(GetParam()) {
        wait(500ms);
        beginTake();
        EXPECT_TRUE(waitUntil([this] { return capturedFrames(*take) > framesPerSecond; }, 4s));
    }

    void beginTake() {
        track = desk.buffer(clicks(takeLength));
        take = desk.capture(takeLength);
        const SoundTransaction together(SoundSystem::engine());
        track->Play(0);
        take->Start(0);
    }

    /// The timeline keeps step with the clock for a while.
    void expectTimelineGoesOn(std::chrono::milliseconds time) {
        const Frames from = SoundSystem::engine()->mixedFrames();
        const auto begun = std::chrono::steady_clock::now();
        wait(time);
        const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begun;
        const Frames mixed = SoundSystem::engine()->mixedFrames() - from;
        EXPECT_NEAR(static_cast<double>(mixed), passed.count() * framesPerSecond, 60 * millisecond);
    }

    bool takeGrows(std::chrono::milliseconds limit) {
        const Frames before = capturedFrames(*take);
        return waitUntil([&] { return capturedFrames(*take) > before + framesPerSecond; }, limit);
    }

    /// What grows the take first is the hole.
    bool takeGoesOn() { return takeGrows(8s) && takeGrows(4s); }

    void expectTheTakesEndInTime() {
        take->Stop();
        const Sound sound = captured(*take);
        const Frames last = std::ssize(sound) - framesPerSecond;
        EXPECT_LE(std::abs(clicksBehind(part(sound, last, framesPerSecond), last)), 8 * millisecond);
    }

    ServerDesk desk;
    std::unique_ptr<DirectSoundSecondaryBuffer8> track;
    std::unique_ptr<DirectSoundCaptureBuffer8> take;
};

TEST_P(DeviceLoss, AServerThatStandsStillHoldsNothingUp) {
    desk.server.freeze();
    expectTimelineGoesOn(2000ms);
    desk.server.thaw();
    EXPECT_TRUE(takeGoesOn());
    expectTimelineGoesOn(1000ms);
    expectTheTakesEndInTime();
}

TEST_P(DeviceLoss, TheProgramsOwnSoundNeedsNoDevice) {
    desk.card->selectSource({.kind = RecordingSource::Kind::ownOutput, .name = {}});
    wait(200ms);
    desk.server.control(std::string("set-sink-mute ") + SoundServer::sink + " 1");
    beginTake();
    EXPECT_TRUE(takeGrows(4s));
    desk.server.kill();
    EXPECT_TRUE(takeGrows(4s));
    take->Stop();
    const Sound sound = captured(*take);
    EXPECT_EQ(sound, clicks(std::ssize(sound)));
}

TEST_P(DeviceLoss, AVanishedOutputTakesItsMonitorAlongAndBothComeBack) {
    desk.server.control("unload-module module-null-sink");
    expectTimelineGoesOn(1000ms);
    desk.server.control(std::string("load-module module-null-sink sink_name=") + SoundServer::sink);
    EXPECT_TRUE(takeGoesOn());
    expectTheTakesEndInTime();
}

INSTANTIATE_TEST_SUITE_P(Servers, DeviceLoss, bothServers, serverName);

}  // namespace
}  // namespace lyrebrook
