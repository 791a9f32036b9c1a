#pragma once

#include <QTemporaryDir>
#include <chrono>
#include <functional>

#include "integration/support/ServerDesk.h"
#include "platform/sound/WaveFile.h"
#include "support/CrankedStudio.h"

namespace lyrebrook {

/// A whole program at a desk of its own, as `CrankedStudio` has it, but on a real server and by the real clock: sound
/// goes on by itself, timers and events in `live`.
class ServerStudio {
  public:
    explicit ServerStudio(ServerKind kind);

    /// Until `done`, at most for `limit`. False when that was not enough.
    bool liveUntil(const std::function<bool()>& done, std::chrono::milliseconds limit);
    void live(std::chrono::milliseconds time);

    SoundServer server;

  private:
    QTemporaryDir folder_;

  public:
    CrankedStudio studio{folder_.path()};
    PulseCard* card;
};

}  // namespace lyrebrook
