#include <QFile>
#include <cmath>

#include "lyrics/FrmLyrics.h"
#include "recorder/FrmComposer.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"
#include "steps.h"

namespace lyrebrook {

using namespace std::chrono_literals;

namespace {

struct WrittenLine {
    double second;
    const char* chord;
    const char* words;
};

constexpr WrittenLine lines[] = {{4, "D", "Walking down the rivre road"},
                                 {8, "G", "Evening takes the heavy load"},
                                 {12, "Bm7", "Every window has a light"},
                                 {16, "A", "Sing me through another night"}};

/// Stops at the place, types, and ties the words to it.
void write(const WrittenLine& line) {
    const double place = line.second * bytesPerSecond / static_cast<double>(QFile(trackFilePath(1)).size() - 44);
    const double x = 100 + frmComposer->shpWaveform[1].Width() * place;
    frmComposer->imgSliderB.MouseDown.fire(MouseButton::left, 0, x, 200);
    frmComposer->txtChord.setText(QString::fromUtf8(line.chord));
    frmComposer->txtLyrics.setText(QString::fromUtf8(line.words));
    frmComposer->cmdLyricAdd.setValue(true);
}

/// Each line must be up a little before its place in the song.
void playOver(Tour& tour) {
    frmComposer->cmdHome.setValue(true);
    frmComposer->cmdPlay.setValue(true);
    double now = 0;
    for (const WrittenLine& line : lines) {
        constexpr double ahead = 0.9;
        tour.studio().crank(std::chrono::milliseconds(std::lround((line.second - ahead - now) * 1000)));
        now = line.second - ahead;
        tour.require(frmComposer->txtLyrics.Text() == QString::fromUtf8(line.words),
                     QStringLiteral("the line is shown ahead of its time"));
    }
    tour.studio().crank(1s);
    tour.picture(*frmComposer, QStringLiteral("recorder-lyrics"));
}

void correctInEditor(Tour& tour) {
    frmComposer->cmdViewLyrics.setValue(true);
    frmLyrics->lstLyrics.setListIndex(0);
    frmLyrics->txtLine.setText(QStringLiteral("Walking down the river road"));
    tour.picture(*frmLyrics, QStringLiteral("lyric-editor"));
    frmLyrics->cmdUpdate.setValue(true);
    tour.require(frmLyrics->lstLyrics.List(0) == QStringLiteral("Walking down the river road"),
                 QStringLiteral("the line is corrected"));
}

void sayLyricFile(Tour& tour) {
    QFile file(gLyricFile);
    tour.require(file.open(QIODevice::ReadOnly), QStringLiteral("the song has a lyric file"));
    tour.say(QStringLiteral("step 4: wrote four lines with chords, corrected one"));
    for (const QByteArray& line : file.readAll().trimmed().split('\n'))
        tour.say(QStringLiteral("  ") + QString::fromUtf8(line.trimmed()));
}

}  // namespace

void writeLyrics(Tour& tour) {
    frmIntro->mnuStep4.Click.fire();
    for (const WrittenLine& line : lines) write(line);
    playOver(tour);
    correctInEditor(tour);
    sayLyricFile(tour);
    printLyrics(tour);
    frmLyrics->cmdClose.setValue(true);
    findRhymes(tour);
    frmComposer->btnEnd.setValue(true);
}

}  // namespace lyrebrook
