#pragma once

#include <gmock/gmock.h>

#include "projects/SongData.h"
#include "recorder/FrmComposer.h"
#include "recorder/recorderMemory.h"
#include "shell/modConfig.h"
#include "support/Studio.h"

namespace lyrebrook {

using namespace std::chrono_literals;

constexpr std::size_t second = framesPerSecond;
constexpr std::size_t songSeconds = 100;

/// Sound of one value, which tells who made it.
inline Sound tone(std::size_t frames, std::int16_t value) {
    return Sound(frames, StereoFrame{value, static_cast<std::int16_t>(-value)});
}

/// The recorder's screen over a song of 100 seconds; a singer stands at the microphone, and the music is a quiet tone.
class RecorderScreen : public Studio {
  protected:
    RecorderScreen() {
        gSongName = QStringLiteral("My Song");
        writeSongData(songDataPath(gSongName), {.projectName = gSongName, .projectCategory = QStringLiteral("Rock")});
        card().selectRecording(RecordingLine::microphone);
        card().listen([this](Frames, std::span<const StereoFrame> frames) {
            heard.insert(heard.end(), frames.begin(), frames.end());
        });
    }

    void giveTrack(int number, std::span<const StereoFrame> frames) {
        giveWave(QStringLiteral("My Song_%1.wav").arg(number), frames);
    }
    static Sound track(int number) { return framesOf(trackFilePath(number)); }
    static QByteArray fileOf(int number) {
        QFile file(trackFilePath(number));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void open(std::size_t seconds = songSeconds) {
        giveTrack(1, tone(seconds * second, 1));
        frmComposer.Show();
    }

    /// A click on the time line at that second of the song.
    static void moveTo(double seconds) {
        const double x = 100 + frmComposer->shpWaveform[1].Width() * seconds / songSeconds;
        frmComposer->imgSliderB.MouseDown.fire(MouseButton::left, 0, x, 200);
    }
    static void arm(int number) { frmComposer->cmdRecEnable[number].setValue(true); }
    static void clickRecord() { frmComposer->cmdRecord.setValue(true); }
    static void clickPlay() { frmComposer->cmdPlay.setValue(true); }
    static void clickStop() { frmComposer->cmdStop.setValue(true); }
    static bool recording() { return frmComposer->cbRecord.Value() == 1; }
    static QString time() { return frmComposer->lblHMS.Caption(); }

    void sings(const Sound& sound) {
        card().feed(CardLine::microphone, sound);
        crank(std::chrono::milliseconds(sound.size() * 1000 / second));
    }

    /// What is heard from now on for that long.
    Sound listen(std::chrono::milliseconds time) {
        heard.clear();
        crank(time);
        return heard;
    }

    /// Every box that no test expects fails it.
    template <class... Boxes>
    void expectBoxes(const Boxes&... boxes) {
        EXPECT_THAT(desk().takeBoxes(), testing::ElementsAre(boxes...));
    }

    Sound heard;
};

}  // namespace lyrebrook
