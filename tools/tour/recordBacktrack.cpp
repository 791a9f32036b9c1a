#include <QElapsedTimer>

#include "backtrack/FrmMixer.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"
#include "steps.h"

namespace lyrebrook {

using namespace std::chrono_literals;

namespace {

/// Lets the recording run to its own end, and tells how fast the crank turned.
void recordToTheEnd(Tour& tour) {
    QElapsedTimer clock;
    clock.start();
    const bool ended = tour.studio().crankUntil([] { return frmMixer->cmdPlay.Enabled(); }, 420s);
    const double elapsed = static_cast<double>(clock.nsecsElapsed()) / 1e9;
    tour.require(ended, QStringLiteral("the end of the backtrack ends its recording"));
    const double recorded = static_cast<double>(framesOf(trackFilePath(1)).size()) / framesPerSecond - 8.25;
    tour.say(QStringLiteral("crank: %1 x real time").arg(recorded / elapsed, 0, 'f', 0));
}

/// A source that delivers nothing, which the screen tells and which is then given up.
void recordNothing(Tour& tour) {
    frmMixer->checkSource.setValue(1);
    frmMixer->cmdPlay.setValue(true);
    tour.studio().crank(2500ms);
    tour.picture(*frmMixer, QStringLiteral("backtrack-without-sound"));
    tour.say(QStringLiteral("step 3: ") + frmMixer->lblNotice.Caption());
    frmMixer->cmdStop.setValue(true);
    frmMixer->checkSource.setValue(0);
    tour.studio().crank(100ms);
    tour.require(frmMixer->lblNotice.Caption().isEmpty(), QStringLiteral("the notice goes away with the recording"));
}

}  // namespace

void recordBacktrack(Tour& tour) {
    frmIntro->mnuStep3.Click.fire();
    tour.picture(*frmMixer, QStringLiteral("backtrack-recorder"));
    recordNothing(tour);
    frmMixer->cmdPlay.setValue(true);
    tour.studio().crank(8250ms);
    tour.picture(*frmMixer, QStringLiteral("backtrack-recording"));
    recordToTheEnd(tour);
    frmMixer->btnEnd.setValue(true);
    tour.say(QStringLiteral("step 3: recorded the backtrack"));
    tour.sayWave(trackFilePath(1));
    tour.picture(*frmIntro, QStringLiteral("main-window-three-steps"));
}

}  // namespace lyrebrook
