// What it costs to open a song of four tracks, in time and in memory.
#include <unistd.h>

#include <fstream>

#include "platform/sound/DirectSound8.h"
#include "platform/sound/SoundSystem.h"
#include "recorder/Tracks.h"
#include "support/BenchStudio.h"
#include "support/BenchTable.h"
#include "support/Stopwatch.h"

namespace lyrebrook {
namespace {

/// Megabytes of this process that are in memory.
double megabytesHeld() {
    std::ifstream status("/proc/self/statm");
    double whole = 0;
    double resident = 0;
    status >> whole >> resident;
    return resident * static_cast<double>(::sysconf(_SC_PAGESIZE)) / 1e6;
}

void measure() {
    BenchStudio desk;
    std::vector<std::string> cat{"cat"};
    for (int track = 1; track <= trackCount; ++track) cat.push_back(desk.giveTrack(track, std::chrono::minutes(5)));
    DirectSound8 ds(SoundSystem::engine());
    const auto open = [&ds] {
        Tracks tracks;
        return costOf([&] { tracks.loadTracks(ds); }).clock.count();
    };
    const auto growth = [&ds] {
        Tracks tracks;
        const double before = megabytesHeld();
        tracks.loadTracks(ds);
        return megabytesHeld() - before;
    };
    sideBySide({.name = "open", .reference = "cat of the four tracks", .unit = "ms", .limit = 0.2}, open,
               [&cat] { return costOfCommand(cat).clock.count(); });
    constexpr double mostMegabytes = 20;
    besideFigure({.name = "open-growth", .reference = "what opening may take", .unit = "MB"}, mostMegabytes, growth);
}

}  // namespace
}  // namespace lyrebrook

int main() {
    lyrebrook::measure();
}
