#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <span>
#include <thread>
#include <vector>

#include "integration/support/SoundServer.h"
#include "platform/sound/SoundDesk.h"
#include "platform/sound/cards/PulseCard.h"

namespace lyrebrook {

using namespace std::chrono_literals;

/// Clicks at equal distances from the first frame on, in silence.
inline constexpr Frames clickDistance = framesPerSecond / 2;
Sound clicks(Frames length);

/// How far the clicks of a recording lie behind the places where they ought to be, given the frame of the click track
/// that the recording starts with; the median, in frames. A failure when there are none.
double clicksBehind(std::span<const StereoFrame> recording, Frames start);

/// Waits in real time.
void wait(std::chrono::milliseconds time);
bool waitUntil(const std::function<bool()>& done, std::chrono::milliseconds limit);

/// The program's sound system on a real server, with a meter that keeps the input open, as a recording screen does.
class ServerDesk : public SoundObjects {
  public:
    explicit ServerDesk(ServerKind kind);
    ~ServerDesk() { SoundSystem::remove(); }
    ServerDesk(const ServerDesk&) = delete;
    ServerDesk& operator=(const ServerDesk&) = delete;

    SoundServer server;
    PulseCard* card = nullptr;

  private:
    std::unique_ptr<DirectSoundCaptureBuffer8> meter_;
};

/// For tests that run on each kind of server.
inline const auto bothServers = testing::Values(ServerKind::pulseAudio, ServerKind::pipeWire);
inline std::string serverName(const testing::TestParamInfo<ServerKind>& test) {
    return nameOf(test.param);
}

Frames capturedFrames(const DirectSoundCaptureBuffer8& capture);

}  // namespace lyrebrook
