#include "recorder/FrmComposer.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QMenuBar>

#include "backtrack/FrmMixer.h"
#include "platform/base/ReplacingFile.h"
#include "platform/files/FailingDisk.h"
#include "platform/files/Settings.h"
#include "platform/sound/SoundSystem.h"
#include "projects/FrmSongConfig.h"
#include "projects/SongData.h"
#include "recorder/recorderMemory.h"
#include "recorder/waveLength.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"
#include "support/Studio.h"

namespace lyrebrook {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

using Sound = std::vector<StereoFrame>;

constexpr std::size_t second = framesPerSecond;
constexpr std::int32_t songSeconds = 100;

Sound part(const Sound& sound, std::size_t from, std::size_t to) {
    return {sound.begin() + static_cast<std::ptrdiff_t>(from), sound.begin() + static_cast<std::ptrdiff_t>(to)};
}

/// Sung sound: other values than any ramp's.
Sound sung(std::size_t frames, std::int16_t value = -9000) {
    return Sound(frames, StereoFrame{value, static_cast<std::int16_t>(-value)});
}

/// The recorder's screen over a song of 100 seconds; the singer stands at the microphone.
class Recorder : public Studio {
  protected:
    Recorder() {
        forgetRecorder();
        gSongName = QStringLiteral("My Song");
        writeSongData(songDataPath(gSongName), {.projectName = gSongName, .projectCategory = QStringLiteral("Rock")});
        card().selectRecording(RecordingLine::microphone);
        card().listen([this](Frames, std::span<const StereoFrame> frames) {
            heard.insert(heard.end(), frames.begin(), frames.end());
        });
    }
    ~Recorder() override { forgetRecorder(); }

    void giveTrack(int track, std::span<const StereoFrame> frames) {
        giveWave(QStringLiteral("My Song_%1.wav").arg(track), frames);
    }

    void open(std::int32_t seconds = songSeconds) {
        giveTrack(1, Sound(static_cast<std::size_t>(seconds) * second, StereoFrame{1, 1}));
        frmComposer.Show();
    }

    /// A click at that second of the song.
    static void moveTo(double seconds, double song = songSeconds) {
        const double x = 100 + frmComposer->shpWaveform[1].Width() * seconds / song;
        frmComposer->imgSliderB.MouseDown.fire(MouseButton::left, 0, x, 200);
    }
    static void arm(int track) { frmComposer->cmdRecEnable[track].setValue(true); }
    static void clickRecord() { frmComposer->cmdRecord.setValue(true); }
    static void clickPlay() { frmComposer->cmdPlay.setValue(true); }
    static void clickStop() { frmComposer->cmdStop.setValue(true); }

    void sings(const Sound& sound) {
        card().feed(CardLine::microphone, sound);
        crank(std::chrono::milliseconds(sound.size() * 1000 / second));
    }

    static Sound track(int number) { return framesOf(trackFilePath(number)); }

    void expectBox(const Box& box) { EXPECT_THAT(desk().takeBoxes(), ElementsAre(box)); }

    Sound heard;
};

TEST_F(Recorder, DrivenThroughAWholeSession) {
    open();
    arm(2);
    clickRecord();
    sings(sung(20 * second));
    clickStop();
    const Sound first = track(2);
    EXPECT_EQ(first, sung(20 * second)) << "a take from the start";

    moveTo(10);
    clickRecord();
    sings(sung(5 * second, 4321));
    clickStop();
    const Sound punched = track(2);
    ASSERT_EQ(punched.size(), first.size());
    EXPECT_EQ(part(punched, 10 * second, 15 * second), sung(5 * second, 4321));
    EXPECT_EQ(part(punched, 0, 10 * second), part(first, 0, 10 * second));
    EXPECT_EQ(part(punched, 15 * second, 20 * second), part(first, 15 * second, 20 * second));
}

}  // namespace
}  // namespace lyrebrook
