#include <cmath>
#include <numbers>

#include "recorder/FrmComposer.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"
#include "steps.h"

namespace lyrebrook {

using namespace std::chrono_literals;

namespace {

constexpr int firstVoice = 2;
constexpr int secondVoice = 3;
constexpr int finalMix = 4;

/// A held note with a slow vibrato, as a stand-in for a singer.
std::vector<StereoFrame> voice(double pitch, std::chrono::seconds length) {
    std::vector<StereoFrame> frames(static_cast<std::size_t>(length.count()) * framesPerSecond);
    double phase = 0;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const double time = static_cast<double>(i) / framesPerSecond;
        phase +=
            2 * std::numbers::pi * pitch * (1 + 0.006 * std::sin(2 * std::numbers::pi * 5 * time)) / framesPerSecond;
        const auto sample = static_cast<std::int16_t>(9000 * std::sin(phase) * std::min(1.0, 4 * time));
        frames[i] = {sample, sample};
    }
    return frames;
}

void sing(Tour& tour, double pitch, std::chrono::seconds length) {
    tour.studio().card().feed(CardLine::microphone, voice(pitch, length));
}

/// Records from where the cursor stands, for as long as is sung.
void takeOf(Tour& tour, double pitch, std::chrono::seconds length) {
    frmComposer->cmdRecord.setValue(true);
    sing(tour, pitch, length);
    tour.studio().crank(length);
}

void sayTrack(Tour& tour, int track, const QString& what) {
    tour.say(QStringLiteral("step 4: ") + what);
    tour.sayWave(trackFilePath(track));
}

void singFirstVoice(Tour& tour) {
    frmComposer->cmdRecEnable[firstVoice].setValue(true);
    takeOf(tour, 220, 20s);
    tour.picture(*frmComposer, QStringLiteral("recorder-first-take"));
    frmComposer->cmdStop.setValue(true);
    sayTrack(tour, firstVoice, QStringLiteral("sang the first voice"));
}

void punchIntoFirstVoice(Tour& tour) {
    frmComposer->cmdHome.setValue(true);
    frmComposer->cmdPlay.setValue(true);
    tour.studio().crank(8s);
    takeOf(tour, 330, 5s);
    frmComposer->cmdRecord.setValue(true);  // punches out: the song goes on
    tour.studio().crank(2s);
    tour.picture(*frmComposer, QStringLiteral("recorder-punched-in"));
    frmComposer->cmdStop.setValue(true);
    sayTrack(tour, firstVoice, QStringLiteral("punched five seconds into it"));
}

void singSecondVoice(Tour& tour) {
    frmComposer->sldOffset.setValue(20);
    frmComposer->sldOffset.MouseUp.fire();  // letting go of the slider starts the song
    frmComposer->cmdStop.setValue(true);
    frmComposer->cmdHome.setValue(true);
    frmComposer->cmdRecEnable[secondVoice].setValue(true);
    takeOf(tour, 277, 15s);
    frmComposer->cmdStop.setValue(true);
    sayTrack(tour, secondVoice, QStringLiteral("sang the second voice, voices moved by %1").arg(gVoiceTrackOffset));
}

void recordFinalMix(Tour& tour) {
    tour.studio().card().selectRecording(RecordingLine::stereoMix);
    frmComposer->cmdHome.setValue(true);
    frmComposer->cmdRecEnable[finalMix].setValue(true);
    frmComposer->cmdRecord.setValue(true);
    tour.studio().crank(20s);
    tour.picture(*frmComposer, QStringLiteral("recorder-recording-the-mix"));  // scrolled to the lower rows
    const bool ended = tour.studio().crankUntil([] { return frmComposer->cbRecord.Value() == 0; }, 420s);
    tour.require(ended, QStringLiteral("the end of the song ends the final mix"));
    tour.picture(*frmComposer, QStringLiteral("recorder-final-mix"));
    sayTrack(tour, finalMix, QStringLiteral("recorded the final mix"));
}

}  // namespace

void singVoices(Tour& tour) {
    frmIntro->mnuStep4.Click.fire();
    tour.picture(*frmComposer, QStringLiteral("recorder"));
    tour.studio().card().selectRecording(RecordingLine::microphone);
    singFirstVoice(tour);
    punchIntoFirstVoice(tour);
    singSecondVoice(tour);
    recordFinalMix(tour);
    frmComposer->btnEnd.setValue(true);
}

}  // namespace lyrebrook
