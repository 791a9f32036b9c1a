// What an open mixer on a sound server takes of the processor: while nothing changes, and while another program moves a
// level a thousand times a second. All threads of ours count, the program that moves the level doesn't.
#include <sys/resource.h>

#include <chrono>
#include <memory>
#include <string>
#include <thread>

#include "integration/support/LevelMover.h"
#include "integration/support/SoundServer.h"
#include "platform/sound/cards/pulse/CardShare.h"
#include "platform/sound/cards/pulse/MixerConnection.h"
#include "platform/sound/cards/pulse/PulseMixer.h"
#include "platform/winmm/MixerDesk.h"
#include "support/BenchTable.h"

namespace lyrebrook {
namespace {

using namespace std::chrono_literals;
using Seconds = std::chrono::duration<double>;

Seconds processorTime() {
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    const auto of = [](const timeval& time) -> Seconds {
        return std::chrono::seconds(time.tv_sec) + std::chrono::microseconds(time.tv_usec);
    };
    return of(used.ru_utime) + of(used.ru_stime);
}

/// Reads what a screen shows of the speakers, as after each message.
void readAll(const MixerDesk& desk) {
    for (const MIXERLINE& line : desk.sources(MixerDesk::speakers)) {
        desk.get(line.dwLineID, MixerDesk::volume);
        desk.get(line.dwLineID, MixerDesk::volume, 2);
        desk.get(line.dwLineID, MixerDesk::mute);
    }
}

double idlePercent() {
    constexpr auto length = 2s;
    const Seconds before = processorTime();
    std::this_thread::sleep_for(length);
    return 100 * (processorTime() - before) / Seconds(length);
}

double millisecondsForAThousand(const MixerDesk& desk) {
    constexpr auto length = 1s;
    const Seconds before = processorTime();
    Seconds moving{0};
    std::jthread mover([&] { moving = moveLevel(SoundServer::sink, 1000, length); });
    const auto end = std::chrono::steady_clock::now() + length + 100ms;
    while (std::chrono::steady_clock::now() < end) {
        if (!ListeningWindow::listen().empty()) readAll(desk);
        std::this_thread::sleep_for(5ms);
    }
    mover.join();
    return 1000 * (processorTime() - before - moving).count();
}

void measure() {
    SoundServer server(ServerKind::pulseAudio);
    server.start();
    const auto share = std::make_shared<CardShare>();
    setMixerBackend(std::make_shared<PulseMixer>(std::make_shared<MixerConnection>(),
                                                 std::shared_ptr<CardLines>(share, &share->buses), share));
    const MixerDesk desk;
    constexpr double mostIdle = 1;
    constexpr double mostBusy = 100;
    besideFigure({.name = "mixer-idle", .reference = "an open mixer may take while idle", .unit = "%"}, mostIdle,
                 idlePercent);
    besideFigure({.name = "mixer-changes", .reference = "1,000 changes of a level may take", .unit = "ms"}, mostBusy,
                 [&desk] { return millisecondsForAThousand(desk); });
    setMixerBackend(nullptr);
}

}  // namespace
}  // namespace lyrebrook

int main() {
    lyrebrook::measure();
}
