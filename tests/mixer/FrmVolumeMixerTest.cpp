#include "mixer/FrmVolumeMixer.h"

#include <QImage>
#include <QPixmap>

#include "backtrack/FrmMixer.h"
#include "backtrack/FrmSelect.h"
#include "mixer/MixerStudio.h"
#include "mixer/TableCard.h"
#include "mixer/levelMeters.h"
#include "mixer/mixerMessages.h"
#include "mixer/waveInput.h"
#include "platform/base/RuntimeError.h"
#include "recorder/FrmComposer.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"

namespace lyrebrook {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

/// The mixer screen over the virtual card, entered from the steps.
class MixerScreen : public MixerStudio {
  protected:
    MixerScreen() {
        gSongName = QStringLiteral("My Song");
        giveWave(QStringLiteral("My Song_1.wav"), ramp(framesPerSecond));
        gBacktrackFile = path(QStringLiteral("songs/My Song_1.wav"));
    }

    /// Clicks a step's button, and does `work` while the mixer is open; the step's end ends it.
    template <class Step>
    void fromStep(
        FormInstance<Step>& step, const std::function<void()>& work = [] {}) {
        step.Show();
        desk().whileWaiting([&] {
            EXPECT_TRUE(frmVolumeMixer->Visible());
            work();
            step.Unload();
        });
        step->cmdMixer.setValue(true);
        EXPECT_FALSE(frmVolumeMixer.isLoaded());
        EXPECT_FALSE(gMixerOpen);
    }

    /// Whether a column is lit to about nine tenths.
    static bool isHigh(const PictureBox& column) {
        const QImage image = column.widget()->grab().toImage();
        return qRed(image.pixel(image.width() / 2, image.height() * 15 / 100)) > 200;
    }

    static constexpr int wave = 1;
    static constexpr int microphone = 0;
};

TEST_F(MixerScreen, OpensFromThreeStepsAndGoesWithThem) {
    fromStep(frmSelect);
    fromStep(frmMixer);
    fromStep(frmComposer);
    frmIntro.Show();
    desk().whileWaiting([] { frmIntro.Unload(); });
    EXPECT_THROW(showMasterMixer(), ProgramEnded);
    EXPECT_FALSE(frmVolumeMixer.isLoaded());
}

TEST_F(MixerScreen, StaysAwayWhileAStepPlays) {
    const auto refusedWith = [this](const QString& text, const std::function<void()>& click) {
        desk().willAnswer(vbOK);
        click();
        EXPECT_THAT(desk().takeBoxes(), ElementsAre(Box{text}));
    };
    frmMixer.Show();
    frmMixer->cmdPlay.setValue(true);
    const QString refusal = QStringLiteral("Window can not open while recording or playing!");
    refusedWith(refusal, [] { frmMixer->cmdMixer.setValue(true); });
    frmComposer.Show();
    frmComposer->cmdPlay.setValue(true);
    refusedWith(refusal + QStringLiteral(" Click stop and try again."), [] { frmComposer->mnuVolume2.Click.fire(); });
}

TEST_F(MixerScreen, CloseStopsTheStepAndHidesAndTheNextClickShowsItAsItWas) {
    fromStep(frmComposer, [this] {
        frmComposer->cmdPlay.setValue(true);
        frmVolumeMixer->cmdClose.setValue(true);
        EXPECT_FALSE(frmComposer->playing());
        EXPECT_FALSE(frmVolumeMixer->Visible());
        card().setLevel(CardLine::wave, {0, 0});
        hearMessages();
        frmComposer->cmdMixer.setValue(true);
        EXPECT_TRUE(frmVolumeMixer->Visible());
        EXPECT_EQ(frmVolumeMixer->txtPlaybackVolume[wave].Text(), QStringLiteral("0")) << "it goes on listening";
    });
}

TEST_F(MixerScreen, ItsControlsActOnTheCardAndFollowIt) {
    whileOpen([this] {
        EXPECT_THAT(captions(frmVolumeMixer->playbackRow()),
                    ElementsAre("Master", "Wave", "Synth", "CD", "Line", "Mic", "Aux"));
        Slider& volume = frmVolumeMixer->sldPlaybackVolume[wave];
        Slider& balance = frmVolumeMixer->sldPlaybackBalance[wave];
        volume.setValue(65535 - 30000);
        EXPECT_EQ(frmVolumeMixer->txtPlaybackVolume[wave].Text(), QStringLiteral("46"));
        hearMessages();
        EXPECT_EQ(balance.Max(), 30000) << "its travel follows the volume";
        balance.setValue(-10000);
        EXPECT_EQ(card().lines().level(CardLine::wave), (LineLevel{30000, 20000}));
        frmVolumeMixer->chkPlaybackMute[wave].setValue(1);
        EXPECT_TRUE(card().lines().muted(CardLine::wave));
        EXPECT_EQ(frmVolumeMixer->chkPlaybackMute[wave].Caption(), QStringLiteral("Muted"));

        card().setLevel(CardLine::wave, {100, 400});
        card().setMuted(CardLine::wave, false);
        hearMessages();
        EXPECT_EQ(volume.Value(), 65535 - 400);
        EXPECT_EQ(balance.Value(), 300);
        EXPECT_EQ(frmVolumeMixer->chkPlaybackMute[wave].BackColor(), cyan);
        EXPECT_EQ(card().lines().level(CardLine::wave), (LineLevel{100, 400})) << "showing writes nothing back";
    });
}

TEST_F(MixerScreen, ASelectionComesRightWithTheCardsMessage) {
    whileOpen([this] {
        const auto ticks = [] {
            std::vector<int> values;
            for (const int i : {0, 1, 5}) values.push_back(frmVolumeMixer->chkRecordSelect[i].Value());
            return values;
        };
        EXPECT_THAT(ticks(), ElementsAre(0, 0, 1));
        frmVolumeMixer->chkRecordSelect[microphone].setValue(1);
        EXPECT_THAT(ticks(), ElementsAre(0, 0, 0)) << "clearing the other cleared this one";
        EXPECT_EQ(card().selectedRecording(), RecordingLine::microphone);
        hearMessages();
        EXPECT_THAT(ticks(), ElementsAre(1, 0, 0));
        frmVolumeMixer->chkRecordSelect[microphone].setValue(0);
        EXPECT_EQ(card().selectedRecording(), RecordingLine::microphone) << "a tick taken away is not written";
    });
}

TEST_F(MixerScreen, OnlyDraggingABarMovesAStrip) {
    whileOpen([] {
        EXPECT_EQ(frmVolumeMixer->Picture2.Width(), 275 + 7 * 980);
        EXPECT_EQ(frmVolumeMixer->HScroll1.Max(), 251);
        EXPECT_FALSE(frmVolumeMixer->VScroll1.Visible());
        frmVolumeMixer->HScroll1.setValue(100);
        EXPECT_EQ(frmVolumeMixer->Picture2.Left(), 0);
        frmVolumeMixer->HScroll1.Scroll.fire();
        EXPECT_EQ(frmVolumeMixer->Picture2.Left(), -1500);
    });
}

TEST_F(MixerScreen, AMixerThatCannotBeOpenedLeavesItLoadedAndHidden) {
    {
        TableCard none;
        none.devices.clear();
        desk().willAnswer(vbOK);
        showMasterMixer();
    }
    EXPECT_THAT(desk().takeBoxes(),
                ElementsAre(Box{QStringLiteral("Couldn't Open The Mixer! Please check that you have a sound card "
                                               "installed."),
                                vbCritical, QStringLiteral("Error")}));
    EXPECT_TRUE(frmVolumeMixer.isLoaded());
    EXPECT_FALSE(frmVolumeMixer->Visible());
    EXPECT_FALSE(gMixerOpen);
    whileOpen([] { EXPECT_EQ(captions(frmVolumeMixer->playbackRow()).size(), 7U); });
}

TEST_F(MixerScreen, AnotherDeviceIsOpenedAfreshAndBothWaitsEndTogether) {
    TableCard table;
    table.devices = {"First", "Second"};
    table.layOut({"Wave", "CD", "Aux"}, {"Mic"});
    whileOpen([&] {
        EXPECT_EQ(frmVolumeMixer->lstMixerDevs.List(1), QStringLiteral("Device #1:    Second"));
        table.layout.clear();
        table.layOut({"Wave"}, {"Mic", "CD"});
        desk().whileWaiting([&] {
            EXPECT_EQ(table.opened, 1);
            EXPECT_EQ(frmVolumeMixer->lstMixerDevs.ListIndex(), 0);
            EXPECT_THAT(captions(frmVolumeMixer->playbackRow()), ElementsAre("Master", "Wave"));
            EXPECT_EQ(frmVolumeMixer->HScroll1.Max(), -76) << "narrower than its viewport";
            frmVolumeMixer.Unload();
        });
        frmVolumeMixer->lstMixerDevs.setListIndex(1);
        frmVolumeMixer->cmdSelectMixerDev.setValue(true);
    });
    EXPECT_EQ(gMixerDeviceIndex, 1);
}

TEST_F(MixerScreen, TheStepsFeedItsColumnsAndTheLeftSideColoursBothLamps) {
    card().selectRecording(RecordingLine::microphone);
    const auto sing = [this](std::int16_t left, std::int16_t right) {
        card().feed(CardLine::microphone, std::vector<StereoFrame>(framesPerSecond / 2, {left, right}));
        crank(500ms);
    };
    const auto measure = [&] {
        sing(14000, 0);
        EXPECT_TRUE(isHigh(frmVolumeMixer->picLeftVUMeter));
        EXPECT_FALSE(isHigh(frmVolumeMixer->picRightVUMeter));
        EXPECT_EQ(frmVolumeMixer->txtLeftVUMeter.BackColor(), red);
        EXPECT_EQ(frmVolumeMixer->txtRightVUMeter.BackColor(), red);
        sing(0, 30000);
        EXPECT_FALSE(isHigh(frmVolumeMixer->picLeftVUMeter));
        EXPECT_TRUE(isHigh(frmVolumeMixer->picRightVUMeter));
        EXPECT_EQ(frmVolumeMixer->txtRightVUMeter.BackColor(), green);
    };
    fromStep(frmMixer, measure);
    fromStep(frmComposer, measure);
    whileOpen([] {
        for (const auto& [left, lamp] : {std::pair(12772.0, green), {12772.3, red}}) {  // 81 percent is 12772.08
            feedLevelColumns(LevelBars::Averages{left, 0});
            EXPECT_EQ(frmVolumeMixer->txtLeftVUMeter.BackColor(), lamp) << left;
        }
    });
}

TEST_F(MixerScreen, ACaptureThatSomebodyOpensMovesTheColumns) {
    card().selectRecording(RecordingLine::microphone);
    std::vector<std::byte> bytes(100 * bytesPerFrame);
    whileOpen([&] {
        ASSERT_EQ(waveInOpen(gWaveInHandle, {.window = frmVolumeMixer->messageWindow()}), MMSYSERR_NOERROR);
        gCapturing = true;
        gRecFormatIndex = gRecFormatCount - 1;
        WAVEHDR& header = gInputHeaders[15];
        header = {.lpData = bytes.data(), .dwBufferLength = static_cast<std::int32_t>(bytes.size())};
        waveInPrepareHeader(gWaveInHandle, header, sizeof header);
        waveInAddBuffer(gWaveInHandle, header, sizeof header);
        waveInStart(gWaveInHandle);
        card().feed(CardLine::microphone, std::vector<StereoFrame>(100, {16384, -3}));
        card().advance(100);
        waveInStop(gWaveInHandle);
        hearMessages();
        EXPECT_EQ(frmVolumeMixer->txtLeftVUMeter.Text(), QStringLiteral("16"));
        EXPECT_TRUE(header.dwFlags & WHDR_INQUEUE) << "the buffer is filled again";
        EXPECT_EQ(frmVolumeMixer->lstRecFormats.List(11), QStringLiteral("44KHz 16bit Stereo"));
        const auto foreign = reinterpret_cast<LPARAM>(gInputHeaders.data() + gInputHeaders.size());
        EXPECT_THROW(mixerWindowProc(nullptr, MM_WIM_DATA, 0, foreign), RuntimeError);
    });
    EXPECT_EQ(gWaveInHandle, 0);
    EXPECT_FALSE(gCapturing) << "the unload waited for the input's end";
}

}  // namespace
}  // namespace lyrebrook
