#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <cstdio>
#include <thread>

#include "integration/support/ServerDesk.h"

namespace lyrebrook {
namespace {

enum class Start { fromZero, fromMiddle, punchedIn };

constexpr std::array starts{Start::fromZero, Start::fromMiddle, Start::punchedIn};

const char* nameOf(Start start) {
    constexpr std::array names{"zero", "middle", "punch"};
    return names[static_cast<std::size_t>(start)];
}

/// Both cores at work on something else.
class BusyCores {
  public:
    BusyCores() {
        for (std::jthread& thread : threads_) {
            thread = std::jthread([](const std::stop_token& stopping) {
                std::atomic<unsigned> work{0};
                while (!stopping.stop_requested()) ++work;
            });
        }
    }

  private:
    std::array<std::jthread, 2> threads_;
};

/// Records the monitor for a while; tells how late the take lies against the clicks, in milliseconds.
double lateness(ServerDesk& desk, Start start) {
    constexpr Frames length = 6 * framesPerSecond;
    constexpr Frames middle = 2 * framesPerSecond + 1000;
    const auto track = desk.buffer(clicks(length));
    const auto take = desk.capture(length);
    if (start == Start::fromMiddle) track->SetCurrentPosition(toBytes(middle));
    if (start == Start::punchedIn) {
        track->Play(0);
        wait(777ms);
    }
    Frames recordStart = 0;
    {
        const SoundTransaction together(SoundSystem::engine());
        recordStart = playCursor(*track);
        track->Play(0);
        take->Start(0);
    }
    EXPECT_TRUE(waitUntil([&] { return capturedFrames(*take) > clickDistance * 3 / 2; }, 4s));
    track->Stop();
    take->Stop();
    return clicksBehind(captured(*take), recordStart) * 1000 / framesPerSecond;
}

double medianLateness(ServerDesk& desk, Start start) {
    std::array<double, 5> runs{};
    for (double& run : runs) run = lateness(desk, start);
    std::ranges::sort(runs);
    return runs[2];
}

class Alignment : public testing::TestWithParam<ServerKind> {
  protected:
    void expectTakesInTime(const char* load) {
        const double limit = GetParam() == ServerKind::pulseAudio ? 1.0 : 8.0;
        ServerDesk desk(GetParam());
        wait(1s);
        for (const Start start : starts) {
            const double late = medianLateness(desk, start);
            std::printf("ALIGN %s %s %s %.2f\n", lyrebrook::nameOf(GetParam()).c_str(), nameOf(start), load, late);
            EXPECT_LE(std::abs(late), limit) << nameOf(start);
        }
    }
};

TEST_P(Alignment, ATakeLiesWhereTheMusicWasHeard) {
    expectTakesInTime("idle");
}

TEST_P(Alignment, ATakeLiesThereAlsoWhenTheMachineIsBusy) {
    const BusyCores busy;
    expectTakesInTime("loaded");
}

INSTANTIATE_TEST_SUITE_P(Servers, Alignment, bothServers, serverName);

}  // namespace
}  // namespace lyrebrook
