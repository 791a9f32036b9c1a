#include <QStringList>

#include "mixer/FrmVolumeMixer.h"
#include "recorder/FrmComposer.h"
#include "shell/FrmIntro.h"
#include "steps.h"

namespace lyrebrook {

using namespace std::chrono_literals;

namespace {

/// Captions of the panels whose box has that value.
QString linesWith(int value, const LineRow& row, int lines) {
    QStringList names;
    for (int i = 0; i < lines; ++i) {
        if (row.choices[i].Value() == value) names << row.panels[i].Caption();
    }
    return names.join(QStringLiteral(", "));
}

/// A sound at the microphone and the line, so that there is something to see.
void playSomething(Tour& tour) {
    const std::vector<StereoFrame> loud(framesPerSecond / 4, {14500, 11500});
    for (const CardLine input : {CardLine::microphone, CardLine::lineIn, CardLine::cd})
        tour.studio().card().feed(input, loud);
    tour.studio().crank(250ms);
}

void clickPreset(Tour& tour, int index) {
    FrmVolumeMixer& mixer = *frmVolumeMixer;
    mixer.radDevice[index].setValue(true);
    playSomething(tour);
    const QString open = linesWith(0, mixer.playbackRow(), mixer.playbackLineCount);
    const QString selected = linesWith(1, mixer.recordingRow(), mixer.recordLineCount);
    tour.require(!open.isEmpty() && !selected.isEmpty(), QStringLiteral("a preset opens and selects lines"));
    tour.picture(mixer, QStringLiteral("mixer-preset-%1").arg(index));
    tour.say(QStringLiteral("preset %1: open %2; selected %3").arg(index).arg(open, selected));
}

}  // namespace

void adjustLevels(Tour& tour) {
    frmIntro->mnuStep4.Click.fire();
    tour.desk().whileWaiting([&tour] {
        for (int index = 0; index < 5; ++index) clickPreset(tour, index);
        frmComposer->btnEnd.setValue(true);  // which takes the mixer with it
    });
    frmComposer->cmdMixer.setValue(true);
    tour.require(!frmVolumeMixer.isLoaded(), QStringLiteral("the mixer goes with the step that it was opened from"));
}

}  // namespace lyrebrook
