#include "integration/support/ServerDesk.h"

#include <algorithm>

namespace lyrebrook {
namespace {

constexpr std::int16_t clickHeight = 20000;
constexpr std::int16_t heardFrom = 4000;
constexpr Frames clickLength = 32;

/// Frames from the click track's click that lies nearest.
double fromNearestClick(Frames place) {
    const Frames behind = place % clickDistance;
    return static_cast<double>(behind > clickDistance / 2 ? behind - clickDistance : behind);
}

}  // namespace

Sound clicks(Frames length) {
    Sound sound(static_cast<std::size_t>(length));
    for (Frames at = 0; at < length; ++at) {
        if (at % clickDistance < clickLength) sound[static_cast<std::size_t>(at)] = {clickHeight, clickHeight};
    }
    return sound;
}

double clicksBehind(std::span<const StereoFrame> recording, Frames start) {
    std::vector<double> found;
    Frames quietFrom = 0;
    for (Frames at = 0; at < static_cast<Frames>(recording.size()); ++at) {
        if (recording[static_cast<std::size_t>(at)].left < heardFrom) continue;
        if (at >= quietFrom && at > 0) found.push_back(fromNearestClick(start + at));
        quietFrom = at + clickDistance / 2;
    }
    EXPECT_FALSE(found.empty()) << "no click was recorded";
    if (found.empty()) return 1e9;
    const auto middle = found.begin() + static_cast<std::ptrdiff_t>(found.size() / 2);
    std::nth_element(found.begin(), middle, found.end());
    return *middle;
}

void wait(std::chrono::milliseconds time) {
    std::this_thread::sleep_for(time);
}

bool waitUntil(const std::function<bool()>& done, std::chrono::milliseconds limit) {
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!done()) {
        if (std::chrono::steady_clock::now() > end) return false;
        wait(5ms);
    }
    return true;
}

ServerDesk::ServerDesk(ServerKind kind) : server(kind) {
    server.start();
    auto made = std::make_unique<PulseCard>();
    EXPECT_TRUE(made->reachServer(1s));
    card = made.get();
    SoundSystem::install(std::move(made));
    meter_ = capture(8192);
    meter_->Start(DSCBSTART_LOOPING);
}

Frames capturedFrames(const DirectSoundCaptureBuffer8& capture) {
    return wholeFrames(cursors(capture).lWrite);
}

}  // namespace lyrebrook
