#include <QApplication>
#include <QKeyEvent>

#include "backtrack/FrmMixer.h"
#include "platform/files/Settings.h"
#include "recorder/RecorderScreen.h"
#include "shell/FrmIntro.h"

namespace lyrebrook {
namespace {

using testing::Each;

class TransportScreen : public RecorderScreen {
  protected:
    static void press(Control& focused, Qt::Key key) {
        focused.SetFocus();
        for (const auto type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier);
            QApplication::sendEvent(focused.widget(), &event);
        }
    }

    static QString setting(const char* key) {
        return GetSetting(gSettingsApp, QStringLiteral("Settings"), QString::fromLatin1(key), {});
    }
};

TEST_F(TransportScreen, PlaysStopsAndGoesHome) {
    open();
    EXPECT_EQ(frmComposer->Timer1.Interval(), 50);
    moveTo(30);
    clickPlay();
    crank(2s);
    EXPECT_EQ(time(), QStringLiteral("00:32.00"));
    EXPECT_NEAR(frmComposer->lnCursor.X1(), 100 + frmComposer->shpWaveform[1].Width() * 0.32, 10);
    EXPECT_EQ(frmComposer->lnCursor.X2(), frmComposer->lnCursor.X1());
    clickPlay();
    EXPECT_FALSE(frmComposer->playing()) << "Play is a toggle";
    EXPECT_THAT(listen(100ms), Each(StereoFrame{}));
    clickPlay();
    crank(1s);
    EXPECT_EQ(time(), QStringLiteral("00:33.00"));
    frmComposer->cmdHome.setValue(true);
    EXPECT_FALSE(frmComposer->playing());
    EXPECT_EQ(time(), QStringLiteral("00:00.00"));
}

TEST_F(TransportScreen, EndsWithTheMusicThoughALongerVoiceGoesOn) {
    giveTrack(2, tone(4 * second, 100));
    open(2);
    EXPECT_EQ(frmComposer->shpWaveform[1].Width() * 2, frmComposer->shpWaveform[2].Width());
    clickPlay();
    crank(1900ms);
    EXPECT_TRUE(frmComposer->playing());
    EXPECT_NEAR(frmComposer->lnCursor.X1(), 100 + frmComposer->shpWaveform[1].Width() * 0.95, 200);
    crank(300ms);
    EXPECT_FALSE(frmComposer->playing());
    EXPECT_NEAR(listen(200ms).back().left, 100, 8);
}

TEST_F(TransportScreen, SpaceAndHomeAreTheTransportsWhereverTheFocusIs) {
    open();
    frmComposer->window().activateWindow();
    QCoreApplication::processEvents();
    moveTo(10);
    press(frmComposer->cmdRecord, Qt::Key_Space);
    EXPECT_TRUE(frmComposer->playing());
    EXPECT_FALSE(recording()) << "a focused button doesn't see it";
    press(frmComposer->sldOffset, Qt::Key_Space);
    EXPECT_FALSE(frmComposer->playing());
    press(frmComposer->txtLyrics, Qt::Key_Space);
    EXPECT_FALSE(frmComposer->playing()) << "words are typed with it";
    press(frmComposer->sMaster, Qt::Key_Home);
    EXPECT_EQ(time(), QStringLiteral("00:00.00"));
}

TEST_F(TransportScreen, MarksShowInGreenAndNeverCross) {
    open();
    for (int answer = 0; answer < 3; ++answer) desk().willAnswer(vbOK);
    frmComposer->btnRepeat.setValue(true);
    moveTo(40);
    frmComposer->btnIn.setValue(true);
    frmComposer->btnOUT.setValue(true);
    moveTo(60);
    frmComposer->btnOUT.setValue(true);
    moveTo(70);
    frmComposer->btnIn.setValue(true);
    expectBoxes(Box{QStringLiteral("Please set a start and end position by clicking on the IN/OUT buttons above, "
                                   "before you set the song to repeat.")},
                Box{QStringLiteral("You cannot set the END position after or equal to the START position! "
                                   "Please try again")},
                Box{QStringLiteral("You cannot set the START position after or equal to the END position! "
                                   "Please try again")});
    EXPECT_EQ(frmComposer->btnIn.BackColor(), green);
    EXPECT_EQ(frmComposer->btnOUT.BackColor(), green);
    frmComposer->btnRepeat.setValue(true);
    EXPECT_EQ(frmComposer->btnRepeat.BackColor(), red);
    frmComposer->cmdHome.setValue(true);
    EXPECT_EQ(time(), QStringLiteral("00:40.00")) << "home is the IN mark";
}

TEST_F(TransportScreen, GoesOnRepeatingBetweenOldMarksAfterAReload) {
    open();
    moveTo(10);
    frmComposer->btnIn.setValue(true);
    moveTo(12);
    frmComposer->btnOUT.setValue(true);
    frmComposer->btnRepeat.setValue(true);
    frmComposer.Unload();
    frmComposer.Show();
    EXPECT_EQ(frmComposer->btnIn.BackColor(), buttonFace);
    EXPECT_EQ(frmComposer->btnRepeat.BackColor(), buttonFace);
    moveTo(11);
    clickPlay();
    crank(1500ms);
    EXPECT_TRUE(frmComposer->playing());
    EXPECT_TRUE(time().startsWith(QStringLiteral("00:10."))) << time().toStdString();
}

TEST_F(TransportScreen, MetersShowTheInputAndUntickingDropsTheirBuffer) {
    open();
    sings(tone(second, 8000));
    EXPECT_GT(frmComposer->leftVU.Width(), 1400);
    frmComposer->cbEnableVU.setValue(0);
    EXPECT_EQ(setting("EnableVU"), QStringLiteral("0"));
    EXPECT_FALSE(card().inputOpen());
    crank(9s);
    EXPECT_LE(frmComposer->leftVU.Width(), 115);
    clickRecord();
    sings(tone(second, 8000));
    EXPECT_GT(frmComposer->leftVU.Width(), 1400) << "a take moves the bars all the same";
    clickStop();
    EXPECT_EQ(frmComposer->cbEnableVU.Value(), 1);
    EXPECT_EQ(setting("EnableVU"), QStringLiteral("1"));
    clickRecord();
    crank(9s);
    clickStop();
    sings(tone(second, 8000));
    EXPECT_GT(frmComposer->leftVU.Width(), 1400) << "each stop gives the meter its buffer back";
}

TEST_F(TransportScreen, LetGoOfTheOffsetSlidesTheVoicesAndPlays) {
    giveTrack(2, tone(songSeconds * second, 100));
    open();
    moveTo(50);
    frmComposer->sldOffset.setValue(100);
    EXPECT_FALSE(frmComposer->playing());
    frmComposer->sldOffset.MouseUp.fire();
    EXPECT_TRUE(frmComposer->playing());
    EXPECT_EQ(time(), QStringLiteral("00:49.43")) << "the music stays 100000 bytes behind";
    frmComposer.Unload();
    gVoiceTrackOffset = 0;
    frmComposer.Show();
    EXPECT_EQ(frmComposer->sldOffset.Value(), 100) << "kept with the song";
}

TEST_F(TransportScreen, ComingBackReadsEverythingAnewAndStandsAtTheStart) {
    open();
    moveTo(50);
    giveTrack(3, tone(second, 100));
    frmIntro.Show();
    frmComposer.Show();
    EXPECT_EQ(time(), QStringLiteral("00:00.00"));
    EXPECT_TRUE(frmComposer->shpWaveform[3].Visible());
    EXPECT_FALSE(frmMixer.isLoaded() || frmComposer->txtLoading.Visible());
}

TEST_F(TransportScreen, LevelsSurviveAReloadButForThoseAt0) {
    open();
    frmComposer->sLevel[2].setValue(700);
    frmComposer->sReverb[2].setValue(12);
    frmComposer->sReverb[3].setValue(0);
    frmComposer->sMaster.setValue(10);
    frmComposer->sMaster.Scroll.fire();
    EXPECT_EQ(setting("globalVolume"), QStringLiteral("10"));
    frmComposer.Unload();
    frmComposer.Show();
    EXPECT_EQ(frmComposer->sLevel[2].Value(), 700);
    EXPECT_EQ(frmComposer->sReverb[2].Value(), 12);
    EXPECT_EQ(frmComposer->sReverb[3].Value(), 50);
    EXPECT_EQ(frmComposer->sMaster.Value(), 10);
    frmComposer->sMaster.setValue(0);
    frmComposer->sMaster.Scroll.fire();
}

TEST_F(TransportScreen, ListensToTheMixAgainstTheTurnedDownMusicUntilRecord) {
    giveTrack(2, tone(songSeconds * second, 100));
    giveTrack(4, tone(songSeconds * second, 2000));
    open();
    frmComposer->sLevel[1].setValue(500);
    frmComposer->checkChannelMix.setValue(1);
    EXPECT_EQ(frmComposer->sLevel[1].Value(), 3000);
    EXPECT_EQ(frmComposer->sLevel[4].Value(), 0);
    EXPECT_EQ(frmComposer->imgSliderA.Top(), -365) << "its row is in view";
    clickPlay();
    EXPECT_NEAR(listen(1s).back().left, 2000, 40);
    clickStop();
    moveTo(20);
    clickRecord();
    EXPECT_EQ(frmComposer->sLevel[1].Value(), 500);
    EXPECT_EQ(frmComposer->sLevel[4].Value(), 3000);
    EXPECT_EQ(frmComposer->imgSliderA.Top(), 0);
}

TEST_F(TransportScreen, ZoomsAndScrollsTheTimeLine) {
    open();
    const double window = frmComposer->imgContainerB.Width();
    EXPECT_EQ(frmComposer->imgSliderB.Width(), window - 50);
    EXPECT_NEAR(frmComposer->shpWaveform[1].Width(), 8275, 0.01) << "100 twips short at both ends";
    EXPECT_EQ(frmComposer->shpWaveform[3].Top(), 825);
    EXPECT_FALSE(frmComposer->HScrollB.Enabled());
    EXPECT_TRUE(frmComposer->VScrollA.Enabled());
    frmComposer->sldHScale.setValue(105);
    EXPECT_NEAR(frmComposer->imgSliderB.Width(), 2 * (window - 50), 0.01);
    frmComposer->HScrollB.setValue(1000);
    EXPECT_NEAR(frmComposer->imgSliderB.Left(), 50 - window, 0.01);
    EXPECT_EQ(frmComposer->HScrollB.Left(), 1640);
    EXPECT_EQ(frmComposer->sldHScale.Left(), 170);
    frmComposer->mnuFitView.Click.fire();
    EXPECT_EQ(frmComposer->imgSliderB.Width(), window - 50);
    EXPECT_EQ(frmComposer->imgSliderB.Left(), 0);
    EXPECT_EQ(frmComposer->sldHScale.Value(), 105);
}

TEST_F(TransportScreen, ShowsTheLyricStore) {
    open();
    gLyrics = {{QStringLiteral("0100"), QStringLiteral("Am"), QStringLiteral("la"), {}}, {}};
    desk().willAnswer(vbOK);
    frmComposer->Command1.setValue(true);
    expectBoxes(Box{QStringLiteral("0100 | Am | la\r\n\r\n |  | \r\n\r\n")});
}

}  // namespace
}  // namespace lyrebrook
