#include "integration/support/Soak.h"

#include <sys/resource.h>
#include <unistd.h>

#include <fstream>
#include <iomanip>

namespace lyrebrook {
namespace {

constexpr Frames roundLength = 60 * framesPerSecond;
constexpr Frames looked = 5 * framesPerSecond;

long residentKilobytes() {
    long size = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> size >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

double ownProcessorSeconds() {
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(used.ru_utime) + seconds(used.ru_stime);
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const SoakRound& round) {
    return out << std::fixed << std::setprecision(2) << "behind " << round.behindAtStart << " ms to "
               << round.behindAtEnd << " ms, resident " << round.residentKilobytes << " kB, processor "
               << round.ownSeconds << " s, server " << round.serverSeconds << " s";
}

Soak::Soak(ServerKind kind)
    : desk_(kind),
      track_(desk_.buffer(clicks(roundLength))),
      take_(desk_.capture(roundLength)),
      recorded_(static_cast<std::size_t>(roundLength)) {
    wait(1s);
}

SoakRound Soak::round() {
    {
        const SoundTransaction together(SoundSystem::engine());
        track_->SetCurrentPosition(0);
        track_->Play(0);
        take_->Start(0);
    }
    EXPECT_TRUE(waitUntil([this] { return capturedFrames(*take_) == roundLength; }, 70s));
    track_->Stop();
    take_->Stop();
    take_->ReadBuffer(0, toBytes(roundLength), std::as_writable_bytes(std::span(recorded_)), 0);
    return {.behindAtStart = millisecondsBehind(0),
            .behindAtEnd = millisecondsBehind(roundLength - looked),
            .residentKilobytes = residentKilobytes(),
            .ownSeconds = ownProcessorSeconds(),
            .serverSeconds = desk_.server.processorSeconds()};
}

double Soak::millisecondsBehind(Frames from) const {
    const auto part = std::span(recorded_).subspan(static_cast<std::size_t>(from), static_cast<std::size_t>(looked));
    return clicksBehind(part, from) * 1000 / framesPerSecond;
}

}  // namespace lyrebrook
