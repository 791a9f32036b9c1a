#include <gtest/gtest.h>

#include <QFile>
#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <cstdio>
#include <thread>

#include "integration/support/ServerStudio.h"
#include "recorder/FrmComposer.h"
#include "shell/modConfig.h"

namespace lyrebrook {
namespace {

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

void clickOnTimeLine(double fraction) {
    const double bar = frmComposer->shpWaveform[1].Width();
    frmComposer->imgSliderB.MouseDown.fire(MouseButton::left, 0, TrackView::margin + fraction * bar, 200);
}

struct Start {
    const char* name;
    void (*go)(ServerStudio& desk);
};

const Start starts[] = {{"zero", [](ServerStudio&) {}},
                        {"middle", [](ServerStudio&) { clickOnTimeLine(0.41); }},  // between two clicks
                        {"punch", [](ServerStudio& desk) {
                             frmComposer->cmdPlay.setValue(true);
                             desk.live(777ms);
                         }}};

/// Records a click track's echo with the recorder's screen, on an empty voice; tells how late it lies in the voice's
/// file, in milliseconds.
double lateness(ServerStudio& desk, const Start& start) {
    QFile::remove(trackFilePath(2));
    frmComposer.Unload();
    frmComposer.Show();
    start.go(desk);
    frmComposer->cmdRecord.setValue(true);
    desk.live(800ms);
    frmComposer->cmdStop.setValue(true);
    return clicksBehind(framesOf(trackFilePath(2)), 0) * 1000 / framesPerSecond;
}

double medianLateness(ServerStudio& desk, const Start& start) {
    std::array<double, 5> runs{};
    for (double& run : runs) run = lateness(desk, start);
    std::ranges::sort(runs);
    return runs[2];
}

class Alignment : public testing::TestWithParam<ServerKind> {
  protected:
    void expectTakesInTime(const char* load) {
        const double limit = GetParam() == ServerKind::pulseAudio ? 1.0 : 8.0;
        ServerStudio desk(GetParam());
        writeWaveFile(trackFilePath(1).toStdString(), clicks(20 * framesPerSecond));
        frmComposer.Show();
        desk.live(1s);
        for (const Start& start : starts) {
            const double late = medianLateness(desk, start);
            std::printf("ALIGN %s %s %s %.2f\n", nameOf(GetParam()).c_str(), start.name, load, late);
            EXPECT_LE(std::abs(late), limit) << start.name;
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
