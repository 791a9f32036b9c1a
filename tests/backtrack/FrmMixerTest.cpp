#include "backtrack/FrmMixer.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "platform/files/Settings.h"
#include "platform/music/MidiBytes.h"
#include "platform/sound/SoundSystem.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"
#include "support/Sound.h"
#include "support/Studio.h"

namespace lyrebrook {
namespace {

using namespace std::chrono_literals;
using testing::AnyOf;
using testing::Each;
using testing::ElementsAre;
using testing::StartsWith;

/// A piano's note of a second, and a knock a second later.
std::string pianoAndKnock() {
    return midiFile({bytes({0, 0x90, 48, 110, 100, 0x80, 48, 0}) + knock(100) + endOfTrack});
}

class BacktrackRecorder : public Studio {
  protected:
    BacktrackRecorder() {
        gSongName = "My Song";
        card().listen([this](Frames, std::span<const StereoFrame> frames) {
            heard.insert(heard.end(), frames.begin(), frames.end());
        });
    }

    QString giveBacktrack(const QString& name, const std::string& content) {
        QFile file(path("tracks/Version1/" + name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content.data(), static_cast<qint64>(content.size()));
        return file.fileName();
    }

    void openWithWave(std::span<const StereoFrame> frames) {
        giveWave("backtrack.wav", frames);
        open(path("songs/backtrack.wav"));
    }

    static void open(const QString& backtrack) {
        gBacktrackFile = backtrack;
        frmMixer.Show();
    }

    void clickRecord() {
        heard.clear();
        frmMixer->cmdPlay.setValue(true);
        ASSERT_FALSE(frmMixer->cmdPlay.Enabled());
    }

    Sound recordToTheEnd() {
        clickRecord();
        EXPECT_TRUE(crankUntil([] { return isReady(); }, 430s)) << "the backtrack's end ends its recording";
        return recorded();
    }

    static bool isReady() { return frmMixer->cmdPlay.Enabled() && !frmMixer->cmdStop.Enabled(); }
    static Sound recorded() { return framesOf(trackFilePath(1)); }
    static Sound part(const Sound& sound, std::size_t from, std::size_t to) {
        return {sound.begin() + static_cast<std::ptrdiff_t>(from), sound.begin() + static_cast<std::ptrdiff_t>(to)};
    }

    /// Every test that answers no box fails when one comes.
    void expectBox(const Box& box) { EXPECT_THAT(desk().takeBoxes(), ElementsAre(box)); }

    Sound heard;  // what left the speakers since the last click on Record
};

TEST_F(BacktrackRecorder, RecordsAMidiFromItsFirstFrameToTheLastOfItsRingOut) {
    open(giveBacktrack("a.mid", pianoAndKnock()));
    const Sound wave = recordToTheEnd();
    crank(3s);
    ASSERT_GT(wave.size(), 2 * framesPerSecond);
    ASSERT_LT(wave.size(), heard.size());
    EXPECT_TRUE(wave == part(heard, 0, wave.size())) << "frame for frame what was heard since the click";
    EXPECT_THAT(part(heard, wave.size(), heard.size()), Each(StereoFrame{})) << "nothing sounds after the recording";
    EXPECT_EQ(QFileInfo(trackFilePath(1)).size(), headerBytes + static_cast<qint64>(wave.size()) * bytesPerFrame);
}

TEST_F(BacktrackRecorder, RecordsAWaveBitForBitInBlinkingRedAndReplacesTheEarlierRecording) {
    giveWave("My Song_1.wav", ramp(3 * framesPerSecond));
    const Sound backtrack = ramp(2 * framesPerSecond + 13);
    openWithWave(backtrack);
    clickRecord();
    std::string seen;
    for (int quarter = 0; quarter < 6; ++quarter) {
        crank(250ms);
        seen += frmMixer->lblRecording.Visible() ? '#' : '.';
    }
    EXPECT_THAT(seen, AnyOf(".#.#.#", "#.#.#."));
    EXPECT_EQ(frmMixer->lblRecording.Caption(), "R E C O R D I N G");
    EXPECT_EQ(frmMixer->lblRecording.ForeColor(), red);
    EXPECT_TRUE(crankUntil([] { return isReady(); }, 3s));
    const Sound wave = recorded();
    ASSERT_GE(wave.size(), backtrack.size());
    EXPECT_TRUE(part(wave, 0, backtrack.size()) == backtrack);
    EXPECT_LT(wave.size(), backtrack.size() + framesPerSecond / 10);
}

TEST_F(BacktrackRecorder, RecordsAtTheTempoThatIsSetAndEveryLoadSetsItBack) {
    const std::string fourSeconds = knock(0) + knock(100) + knock(100) + knock(100) + knock(100);
    open(giveBacktrack("a.mid", midiFile({fourSeconds + endOfTrack})));
    const auto normal = static_cast<double>(recordToTheEnd().size());
    frmMixer->sldTempo.setValue(20);
    const auto twice = static_cast<double>(recordToTheEnd().size());
    EXPECT_NEAR(normal - twice, 2 * framesPerSecond, framesPerSecond / 10) << "only the ring-out keeps its length";
    frmMixer->cmdListen.setValue(true);
    EXPECT_EQ(frmMixer->sldTempo.Value(), 10);
    for (const auto& [name, ticks] : {std::pair("a.Rmi", 0), {"a.mp3", 0}, {"a.WAV", 3}}) {
        frmMixer.Unload();
        open(giveBacktrack(name, pianoAndKnock()));
        EXPECT_EQ(frmMixer->sldTempo.TickStyle(), ticks) << name;
        EXPECT_EQ(frmMixer->fraTempo.Enabled() && frmMixer->lblTempo[11].Enabled(), ticks == 0) << name;
    }
}

TEST_F(BacktrackRecorder, KeepsTheFirstSevenMinutesOfALongerBacktrack) {
    openWithWave(Sound(421 * framesPerSecond, StereoFrame{1000, -1000}));
    EXPECT_EQ(recordToTheEnd().size(), 420U * framesPerSecond);
    EXPECT_EQ(QFileInfo(trackFilePath(1)).size(), 74'088'044);
}

TEST_F(BacktrackRecorder, RecordsAnExternalSourceUntilStopAndTellsWhenNothingArrives) {
    const auto notice = [] { return frmMixer->lblNotice.Caption(); };
    openWithWave(ramp(framesPerSecond));
    crank(3s);
    EXPECT_EQ(notice(), "");
    frmMixer->checkSource.setValue(1);
    clickRecord();
    crank(2100ms);
    EXPECT_EQ(notice(), "No sound is arriving from the recording source.");
    const Sound singer(3 * framesPerSecond, StereoFrame{-4321, 1234});
    card().feed(CardLine::lineIn, singer);
    crank(2s);
    EXPECT_EQ(frmMixer->lblRecording.Caption() + notice(), "EXT. RECORDING");
    frmMixer->cmdStop.setValue(true);
    const Sound wave = recorded();
    EXPECT_EQ(part(wave, wave.size() - 2 * framesPerSecond, wave.size()), part(singer, 0, 2 * framesPerSecond));
    EXPECT_THAT(part(wave, 0, 2 * framesPerSecond), Each(StereoFrame{})) << "the backtrack is silent";
}

TEST_F(BacktrackRecorder, TellsARecordingThatIsEmptyOrCantBeSavedAndIsReadyForTheNext) {
    giveWave("My Song_1.wav", ramp(500));
    openWithWave(ramp(framesPerSecond));
    clickRecord();
    desk().willAnswer(vbOK);
    frmMixer->cmdStop.setValue(true);
    expectBox({"Recording failed. Possibly, out of buffer space.", vbCritical});
    EXPECT_EQ(recorded(), ramp(500)) << "the earlier one stays";
    gSongsFolder = path("missing/");
    desk().willAnswer(vbOK);
    recordToTheEnd();
    expectBox(
        {"Song data could not be saved. Is the file open or locked by another application? Error: 76 | Desc: Path not "
         "found"});
    EXPECT_EQ(frmMixer->window().cursor().shape(), Qt::ArrowCursor) << "no hourglass stays";
    QDir().mkpath(gSongsFolder);
    EXPECT_EQ(part(recordToTheEnd(), 0, framesPerSecond), ramp(framesPerSecond));
}

TEST_F(BacktrackRecorder, ClosingSavesNothingAndLightsTheStepByTheFileAlone) {
    openWithWave(ramp(framesPerSecond));
    clickRecord();
    crank(500ms);
    frmMixer->btnEnd.setValue(true);
    heard.clear();
    crank(500ms);
    EXPECT_THAT(heard, Each(StereoFrame{}));
    EXPECT_FALSE(QFile::exists(trackFilePath(1)));
    EXPECT_TRUE(frmIntro->picStatusN[2].standsAbove(frmIntro->picStatusY[2]));

    frmMixer.Show();
    clickRecord();
    crank(500ms);
    const auto closeWhileItSaves = [] {
        EXPECT_EQ(frmMixer->lblRecording.Caption(), "S A V I N G");
        EXPECT_EQ(frmMixer->lblRecording.ForeColor(), black);
        frmMixer.Unload();
    };
    QMetaObject::invokeMethod(qApp, closeWhileItSaves, Qt::QueuedConnection);
    frmMixer->cmdStop.setValue(true);
    EXPECT_FALSE(frmMixer.isLoaded() || card().inputOpen());
    giveWave("My Song_1.wav", ramp(10));
    frmMixer.Show();
    frmMixer.Unload();
    EXPECT_TRUE(frmIntro->picStatusY[2].standsAbove(frmIntro->picStatusN[2]));
}

TEST_F(BacktrackRecorder, ListensToTheRecordingWithoutSavingItAgain) {
    openWithWave(ramp(framesPerSecond));
    recordToTheEnd();
    gBacktrackFile.clear();
    giveWave("My Song_1.wav", ramp(2 * framesPerSecond));
    heard.clear();
    frmMixer->cmdListen.setValue(true);
    crank(1s);
    EXPECT_EQ(frmMixer->lblRecording.Caption(), "P L A Y B A C K");
    EXPECT_TRUE(crankUntil([] { return isReady(); }, 3s));
    EXPECT_TRUE(part(heard, 0, 2 * framesPerSecond) == ramp(2 * framesPerSecond));
    EXPECT_EQ(recorded().size(), 2U * framesPerSecond);
    EXPECT_LT(recordToTheEnd().size(), 2U * framesPerSecond) << "recording takes the backtrack again";
}

TEST_F(BacktrackRecorder, TellsWhatDoesNotLoad) {
    const auto boxOf = [this](CommandButton& button) {
        desk().willAnswer(vbOK);
        button.setValue(true);
        return desk().takeBoxes().at(0);
    };
    openWithWave(ramp(framesPerSecond));
    EXPECT_EQ(boxOf(frmMixer->cmdListen),
              Box{"Could not load recorded file - you must record something before listening back!"});
    EXPECT_TRUE(isReady());
    QFile::remove(gBacktrackFile);
    EXPECT_EQ(boxOf(frmMixer->cmdPlay), Box{"Could not load backTrack file!"});
    frmMixer.Unload();

    desk().willAnswer(vbOK);
    open(giveBacktrack("broken.mid", "MThd and then nothing"));
    expectBox({"Could not load selected backtrack file - please select file in Step 2 first!"});
    frmMixer->cmdPlay.setValue(true);
    crank(1s);
    EXPECT_EQ(frmMixer->lblRecording.Caption(), "S T O P P E D");
    EXPECT_TRUE(frmMixer->lblRecording.Visible() && !frmMixer->playing && !frmMixer->cmdStop.Enabled());
}

TEST_F(BacktrackRecorder, AMeterThatWasTurnedOffStaysAsItIsUntilTheNextRecording) {
    openWithWave(ramp(framesPerSecond));
    const auto barAfter = [this](std::int16_t level) {
        card().feed(CardLine::lineIn, Sound(framesPerSecond, StereoFrame{level, 0}));
        crank(1s);
        return frmMixer->leftVU.Width();
    };
    const double loud = barAfter(8000);
    EXPECT_NEAR(loud, LevelBars::widthOf(8000), 0.1);
    EXPECT_LE(frmMixer->rightVU.Width(), LevelBars::restWidth);
    for (const int ticked : {0, 1}) {
        frmMixer->cbEnableVU.setValue(ticked);
        EXPECT_EQ(barAfter(0), loud) << "the same block is read again and again";
        EXPECT_EQ(GetSetting(gSettingsApp, "Settings", "EnableVU", {}), QString::number(ticked));
    }
    frmMixer->checkSource.setValue(1);
    clickRecord();
    EXPECT_GT(barAfter(16000), loud);
    frmMixer->cmdStop.setValue(true);
    EXPECT_LT(barAfter(100), loud);
}

TEST_F(BacktrackRecorder, EndsTheProgramWithoutACardAndWithoutMusic) {
    const auto boxAtTheEnd = [this] {
        SoundSystem::remove();
        desk().willAnswer(vbOK);
        EXPECT_THROW(frmMixer.Show(), ProgramEnded);
        return desk().takeBoxes().at(0);
    };
    openWithWave(ramp(100));
    frmIntro.Show();
    const Box noCard = boxAtTheEnd();
    EXPECT_THAT(noCard.text.toStdString(), StartsWith("Unable to initialize DirectSound playback:\r\n\r\nErr #68: "));
    EXPECT_EQ(noCard, (Box{noCard.text, vbCritical, "Sorry"}));
    frmMixer.Unload();
    EXPECT_EQ(boxAtTheEnd(),
              (Box{"Could not initialize DirectMusic. Please make sure that DirectX 8.1 is installed.\r\nThis program "
                   "will end.",
                   vbInformation, "Exiting..."}));
    EXPECT_FALSE(frmMixer.isLoaded());
}

}  // namespace
}  // namespace lyrebrook
