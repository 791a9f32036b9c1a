#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include "platform/files/FailingDisk.h"
#include "platform/sound/SoundSystem.h"
#include "recorder/RecorderScreen.h"
#include "recorder/soundDevices.h"
#include "shell/FrmIntro.h"

namespace lyrebrook {
namespace {

using testing::Each;

class Recording : public RecorderScreen {};

const QString middleOfTheSong = QStringLiteral(
    "You cannot start from the middle of the song when recording the final mix track."
    "\r\n\r\n* Move cursor to beginning of song, then click 'Record'."
    "\r\n* Allow the song to finish playing before you click stop.");

TEST_F(Recording, ASessionFromTheFirstTakeToTheFinalMix) {
    open();
    clickRecord();
    sings(tone(20 * second, 100));
    EXPECT_EQ(frmComposer->lblRecording.Caption(), QStringLiteral("R E C O R D I N G"));
    EXPECT_THAT(part(heard, second, heard.size() - second), Each(StereoFrame{1, -1})) << "the armed track is silent";
    clickStop();
    ASSERT_EQ(track(2), tone(20 * second, 100));
    frmComposer->sReverb[2].Scroll.fire();  // the new buffer has one to be set

    moveTo(10);
    clickRecord();
    sings(tone(5 * second, 200));
    EXPECT_FALSE(QFile::exists(trackFilePath(3))) << "nothing is written during a take";
    clickRecord();
    EXPECT_TRUE(frmComposer->playing() && !recording()) << "punched out, and the song goes on";
    EXPECT_TRUE(track(2) == tone(10 * second, 100) + tone(5 * second, 200) + tone(5 * second, 100));
    EXPECT_NEAR(listen(1s).back().left, 101, 8) << "from the cursor on the track is heard again, under a faint reverb";
    clickStop();
    moveTo(12);
    clickPlay();
    EXPECT_NEAR(listen(1s).back().left, 201, 8) << "and the new take in it";
    clickStop();

    arm(3);
    moveTo(60);
    clickRecord();
    sings(tone(3 * second, 300));
    clickStop();
    EXPECT_TRUE(track(3) == silence(60 * second) + tone(3 * second, 300));

    arm(4);
    desk().willAnswer(vbOK);
    clickRecord();
    expectBoxes(Box{middleOfTheSong});
    EXPECT_FALSE(recording() || frmComposer->playing());
    frmComposer->cmdHome.setValue(true);
    card().selectRecording(RecordingLine::stereoMix);
    heard.clear();
    clickRecord();
    EXPECT_TRUE(crankUntil([] { return !frmComposer->playing(); }, 110s));
    EXPECT_NEAR(static_cast<double>(track(4).size()) / second, 98, 0.2) << "the mix ends itself";
    EXPECT_TRUE(track(4) == part(heard, 0, track(4).size())) << "frame for frame what the card played";
    EXPECT_EQ(frmComposer->shpTake.Count(), 4);

    desk().willAnswer(vbYes);
    frmComposer->cmdDeleteTrack[2].setValue(true);
    expectBoxes(Box{QStringLiteral("Are you sure you want to permanently delete Voice Track 1?"),
                    vbYesNoCancel + vbQuestion, QStringLiteral("Save changes")});
    EXPECT_FALSE(QFile::exists(trackFilePath(2)));
    EXPECT_EQ(track(3).size(), 63 * second);
    EXPECT_FALSE(frmComposer->shpWaveform[2].Visible());
    EXPECT_EQ(frmComposer->shpTake.Count(), 0) << "the screen was made anew";
    EXPECT_EQ(frmComposer->cmdRecEnable[4].BackColor(), red) << "and the armed track survives";
}

TEST_F(Recording, GoesOnBehindTheMusicsEndWhereALongerVoiceDoes) {
    giveTrack(2, tone(20 * second, 100));
    open(10);
    arm(3);
    clickRecord();
    sings(tone(12 * second, 300));
    EXPECT_FALSE(frmComposer->playing());
    EXPECT_TRUE(recording());
    clickStop();
    EXPECT_TRUE(track(3) == tone(12 * second, 300));
}

TEST_F(Recording, PunchedInWhileTheSongRunsLiesOnTheFrameThatWasPlayed) {
    Sound clicks(20 * second);
    for (std::size_t i = 0; i < clicks.size(); i += 1777) clicks[i] = {20000, 20000};
    giveTrack(1, clicks);
    frmComposer.Show();
    card().selectRecording(RecordingLine::stereoMix);
    clickPlay();
    crank(3210ms);
    clickRecord();
    crank(2s);
    clickStop();
    const Sound echo = track(2);
    const std::size_t start = 321 * second / 100;
    ASSERT_EQ(echo.size(), start + 2 * second);
    for (std::size_t i = start; i < echo.size(); ++i) ASSERT_EQ(echo[i].left > 10000, clicks[i].left > 0) << i;
}

TEST_F(Recording, TellsInALineWhatIsWrongWithTheSoundAndGoesOn) {
    open();
    const auto noticeAfter = [this](std::chrono::milliseconds time, CardNotice of = CardNotice::none) {
        card().setNotice(of);
        crank(time);
        return frmComposer->lblNotice.Caption();
    };
    const QString silence = QStringLiteral("No sound is arriving from the recording source.");
    clickPlay();
    EXPECT_EQ(noticeAfter(3s), QString()) << "nobody records";
    clickRecord();
    EXPECT_EQ(noticeAfter(1900ms), QString());
    EXPECT_EQ(noticeAfter(200ms), silence);
    sings(tone(second, 1));
    EXPECT_EQ(noticeAfter(0ms), QString());
    EXPECT_EQ(noticeAfter(2100ms), silence);
    EXPECT_EQ(noticeAfter(100ms, CardNotice::inputLost),
              QStringLiteral("The recording source is gone. What was recorded is kept."));
    EXPECT_EQ(noticeAfter(100ms, CardNotice::outputLost),
              QStringLiteral("The sound card is gone. What was recorded is kept."));
    EXPECT_EQ(noticeAfter(100ms), QStringLiteral("The sound card is back."));
    EXPECT_EQ(noticeAfter(5s), silence) << "still";
    card().loseInput(second / 10);
    EXPECT_EQ(noticeAfter(200ms), QStringLiteral("A piece of sound was lost. The computer was too busy."));
    EXPECT_EQ(noticeAfter(5s), silence);
    EXPECT_TRUE(recording());
    clickStop();
    EXPECT_EQ(noticeAfter(100ms), QString());
    EXPECT_EQ(track(2).size(), heard.size() - second / 10) << "it stopped nothing";
}

TEST_F(Recording, AClickOnTheTimeLineEndsTheTakeAndMoves) {
    open();
    frmComposer->sLevel[2].setValue(3000);
    clickRecord();
    sings(tone(2 * second, 20000));
    moveTo(1);
    EXPECT_EQ(track(2), tone(2 * second, 20000));
    EXPECT_FALSE(recording());
    EXPECT_TRUE(frmComposer->playing());
    EXPECT_EQ(time(), QStringLiteral("00:01.00"));
    EXPECT_LT(listen(10ms).front().left, 700)
        << "the new take is as quiet as its slider wants it, from its first frame";
}

TEST_F(Recording, RepeatEndsATakeAndKeepsIt) {
    open();
    moveTo(10);
    frmComposer->btnIn.setValue(true);
    moveTo(12);
    frmComposer->btnOUT.setValue(true);
    frmComposer->btnRepeat.setValue(true);
    moveTo(11);
    clickRecord();
    sings(tone(3 * second, 100));
    EXPECT_FALSE(recording());
    EXPECT_TRUE(frmComposer->playing());
    const Sound take = part(track(2), 11 * second, track(2).size() - 11 * second);
    EXPECT_GT(take.size(), second);
    EXPECT_LT(take.size(), second + second / 10) << "one tick late at most";
    EXPECT_THAT(take, Each(StereoFrame{100, -100}));
}

TEST_F(Recording, ShowsTakesInRedOverTheBarOfTheirTrack) {
    open();
    moveTo(25);
    arm(3);
    clickRecord();
    sings(tone(10 * second, 100));
    const Shape& take = frmComposer->shpTake[1];
    const Shape& song = frmComposer->shpWaveform[1];
    EXPECT_TRUE(take.Visible());
    EXPECT_EQ(take.FillColor(), red);
    EXPECT_EQ(take.Top(), frmComposer->shpWaveform[3].Top());
    EXPECT_NEAR(take.Left(), 100 + song.Width() / 4, 0.01);
    EXPECT_NEAR(take.Width(), song.Width() / 10, song.Width() / 1000);
    clickStop();
    frmComposer->sldHScale.setValue(200);
    EXPECT_NEAR(take.Left(), 100 + song.Width() / 4, 0.01);
    EXPECT_NEAR(take.Width(), song.Width() / 10, song.Width() / 1000);
    EXPECT_TRUE(frmComposer->lnCursor.standsAbove(take));
}

TEST_F(Recording, TheHundredthTakeHasNoRoom) {
    open(10);
    for (int take = 1; take <= 99; ++take) {
        clickRecord();
        crank(60ms);
        clickStop();
    }
    EXPECT_EQ(desk().takeGeneralError(), QString());
    clickRecord();
    EXPECT_THROW(crank(60ms), ProgramEnded);
    EXPECT_EQ(desk().takeGeneralError(), QStringLiteral("9: Subscript out of range"));
}

TEST_F(Recording, ArmsVoicesAndTheMixButNothingDuringATake) {
    open();
    EXPECT_EQ(frmComposer->cmdRecEnable[2].BackColor(), red);
    for (int answer = 0; answer < 2; ++answer) desk().willAnswer(vbOK);
    arm(1);
    arm(3);
    clickRecord();
    crank(100ms);
    arm(2);
    expectBoxes(Box{QStringLiteral("Sorry, you cannot record on Track 1."), vbCritical},
                Box{QStringLiteral("Sorry, you cannot change recording track while recording."), vbCritical});
    EXPECT_EQ(frmComposer->cmdRecEnable[2].BackColor(), buttonFace);
    EXPECT_EQ(frmComposer->cmdRecEnable[3].BackColor(), red);
}

TEST_F(Recording, WithoutSoundFailsAndLeavesTheTrackAsItWas) {
    giveTrack(2, tone(songSeconds * second, 100));
    open();
    const QByteArray old = fileOf(2);
    clickPlay();
    crank(1s);
    clickRecord();
    desk().willAnswer(vbOK);
    clickRecord();
    expectBoxes(Box{QStringLiteral("Recording failed. Possibly, out of buffer space."), vbCritical});
    EXPECT_TRUE(fileOf(2) == old);
    EXPECT_FALSE(recording());
    EXPECT_NEAR(listen(1s).back().left, 101, 8) << "the track joins the song again";
}

TEST_F(Recording, DeletesOnlyWhileStandingAndTellsWhatIsntThere) {
    open();
    for (const MsgBoxResult answer : {vbOK, vbYes, vbOK, vbNo}) desk().willAnswer(answer);
    clickPlay();
    frmComposer->cmdDeleteTrack[4].setValue(true);
    clickStop();
    frmComposer->cmdDeleteTrack[4].setValue(true);
    giveTrack(4, tone(100, 1));
    frmComposer->cmdDeleteTrack[4].setValue(true);
    const Box question{QStringLiteral("Are you sure you want to permanently delete the 'Final Mix' track 3?"),
                       vbYesNoCancel + vbQuestion, QStringLiteral("Save changes")};
    expectBoxes(Box{QStringLiteral("Track can not be deleted while playing.")}, question,
                Box{QStringLiteral("Track does not exist!")}, question);
    EXPECT_TRUE(QFile::exists(trackFilePath(4)));
}

TEST_F(Recording, TellsThatItSavesAndMayBeClosedMeanwhile) {
    open();
    clickRecord();
    crank(500ms);
    QString told;
    QMetaObject::invokeMethod(
        qApp,
        [&] {
            told = frmComposer->lblRecording.Caption();
            frmComposer.Unload();
        },
        Qt::QueuedConnection);
    clickStop();
    EXPECT_EQ(told, QStringLiteral("S A V I N G"));
    EXPECT_FALSE(frmComposer.isLoaded() || card().inputOpen() || QFile::exists(trackFilePath(2)));
    EXPECT_TRUE(frmIntro->picStatusY[3].standsAbove(frmIntro->picStatusN[3]));
}

TEST_F(Recording, AFailedSaveKeepsTheOldTrackAndIsTriedAgainOnRequest) {
    giveTrack(2, tone(songSeconds * second, 100));
    open();
    const QByteArray old = fileOf(2);
    FailingDisk disk;
    const auto recordUntilTheDiskIsFull = [&] {
        clickRecord();
        sings(tone(2 * second, 200));
        disk.room = 1000;
        clickRecord();
    };
    const auto boxOf = [](const char* error) {
        return Box{QStringLiteral("Song data could not be saved. Is the file open or locked by another application? "
                                  "Error: %1\r\n\r\nThe take is still there. Try to save it again?")
                       .arg(QString::fromLatin1(error)),
                   vbYesNo + vbExclamation};
    };
    desk().willAnswer(vbYes, [&disk] {
        disk.room = SIZE_MAX;
        QFile::setPermissions(trackFilePath(2), QFile::ReadOwner);
    });
    desk().willAnswer(vbNo);
    recordUntilTheDiskIsFull();
    expectBoxes(boxOf("61 | Desc: Disk full"), boxOf("70 | Desc: Permission denied"));
    EXPECT_EQ(fileOf(2), old);
    EXPECT_FALSE(recording());
    EXPECT_NEAR(listen(1s).back().left, 101, 8) << "what is heard is the old track, too";
    clickStop();

    QFile::setPermissions(trackFilePath(2), QFile::ReadOwner | QFile::WriteOwner);
    moveTo(95);
    desk().willAnswer(vbYes, [&] {
        crank(4s);
        disk.room = SIZE_MAX;
    });
    recordUntilTheDiskIsFull();
    expectBoxes(boxOf("61 | Desc: Disk full"));
    EXPECT_TRUE(track(2) == tone(95 * second, 100) + tone(2 * second, 200) + tone(3 * second, 100));
    EXPECT_FALSE(recording() || frmComposer->playing()) << "the end of the song came meanwhile";
    EXPECT_THAT(listen(100ms), Each(StereoFrame{}));
}

TEST_F(Recording, NeverMergesIntoAFileThatItCouldntRead) {
    giveTrack(2, tone(second, 100));
    QFile::resize(trackFilePath(2), 30);
    const QByteArray torn = fileOf(2);
    desk().willAnswer(vbOK);
    open();
    auto boxes = desk().takeBoxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_TRUE(boxes[0].text.startsWith(QStringLiteral("The file of track 'Voice 1' could not be read."))) << boxes[0];
    frmIntro.Show();
    frmComposer.Show();
    desk().willAnswer(vbOK);
    clickRecord();
    boxes = desk().takeBoxes();
    ASSERT_EQ(boxes.size(), 1U) << "told once, not at each return";
    EXPECT_TRUE(boxes[0].text.startsWith(QStringLiteral("Sorry, you cannot record on 'Voice 1'."))) << boxes[0];
    EXPECT_FALSE(recording() || frmComposer->playing());
    EXPECT_EQ(fileOf(2), torn);
    arm(3);
    clickRecord();
    sings(tone(second, 300));
    clickStop();
    EXPECT_EQ(track(3), tone(second, 300));
}

TEST_F(Recording, SurvivesTheMusicsFileVanishing) {
    open();
    clickPlay();
    crank(1s);
    QFile::remove(trackFilePath(1));
    clickRecord();
    sings(tone(second, 100));
    clickStop();
    EXPECT_TRUE(track(2) == silence(second) + tone(second, 100));
}

TEST_F(Recording, EndsTheProgramWithoutACard) {
    giveTrack(1, tone(second, 1));
    frmIntro.Show();
    SoundSystem::remove();
    DirectX8 dx;
    for (int device = 0; device < 2; ++device) desk().willAnswer(vbOK);
    EXPECT_THROW(frmComposer.Show(), ProgramEnded);
    EXPECT_THROW(openRecording(dx), ProgramEnded);
    const auto boxes = desk().takeBoxes();
    ASSERT_EQ(boxes.size(), 2U);
    for (const auto& [box, purpose] : {std::pair(boxes[0], "playback"), std::pair(boxes[1], "recording")}) {
        EXPECT_TRUE(box.text.startsWith(
            QStringLiteral("Unable to initialize DirectSound %1:\r\n\r\nErr #68: ").arg(QString::fromLatin1(purpose))))
            << box;
        EXPECT_EQ(box.style, vbCritical);
        EXPECT_EQ(box.title, QStringLiteral("Sorry"));
    }
}

}  // namespace
}  // namespace lyrebrook
