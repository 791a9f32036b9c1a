// What the recorder's timer takes of the program's thread while a song of ten minutes plays, painting included.
#include "recorder/FrmComposer.h"
#include "support/BenchStudio.h"
#include "support/BenchTable.h"
#include "support/Stopwatch.h"
#include "support/benchScreen.h"

namespace lyrebrook {
namespace {

using namespace std::chrono_literals;

constexpr auto interval = 50ms;
constexpr Frames framesPerTick = framesPerSecond / 20;

/// Milliseconds of the thread for one tick; the card is turned outside of what is measured.
double tickCost(BenchStudio& desk) {
    constexpr int ticks = 200;
    Milliseconds sum{0};
    for (int tick = 0; tick < ticks; ++tick) {
        desk.card().advance(framesPerTick);
        sum += costOf([&desk] { desk.studio().desk().advanceTime(interval.count()); }).processor;
    }
    return sum.count() / ticks;
}

void measure() {
    BenchStudio desk;
    for (int track = 1; track <= trackCount; ++track) desk.giveTrack(track, 10min);
    frmComposer.Show();
    frmComposer->chkLyrics.setValue(0);
    frmComposer->Timer1.setInterval(interval.count());
    frmComposer->cmdPlay.setValue(true);
    constexpr double most = 0.3;
    besideFigure({.name = "tick", .reference = "what a tick may take", .unit = "ms"}, most,
                 [&desk] { return tickCost(desk); });
}

}  // namespace
}  // namespace lyrebrook

int main(int argc, char* argv[]) {
    return lyrebrook::benchScreen(argc, argv, lyrebrook::measure);
}
