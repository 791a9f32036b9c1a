#include <gtest/gtest.h>

#include <QProcess>

#include "backtrack/FrmMixer.h"
#include "integration/support/ServerStudio.h"
#include "mixer/FrmVolumeMixer.h"
#include "mixer/masterMixer.h"
#include "mixer/modMixer.h"
#include "shell/modConfig.h"

namespace lyrebrook {
namespace {

/// The mixer screen on a real server. `pactl` is the other program.
class MixerScreenOnServers : public testing::TestWithParam<ServerKind> {
  protected:
    MixerScreenOnServers() : desk(GetParam()) {}

    void whileOpen(const std::function<void()>& work) {
        desk.studio.desk().whileWaiting([work] {
            work();
            frmVolumeMixer.Unload();
        });
        showMasterMixer();
    }
    bool serverSays(const std::string& question, const std::string& answer) {
        return desk.liveUntil([&] { return desk.server.control(question).find(answer) != std::string::npos; }, 5s);
    }
    bool comesTrue(const std::function<bool()>& shown) { return desk.liveUntil(shown, 5s); }
    static int recordingLine(const QString& caption) {
        int line = frmVolumeMixer->recordLineCount - 1;
        while (line > 0 && frmVolumeMixer->fraRecordControl[line].Caption() != caption) --line;
        return line;
    }
    static bool isSelected(const QString& caption) {
        return frmVolumeMixer->chkRecordSelect[recordingLine(caption)].Value() == 1;
    }

    ServerStudio desk;
};

TEST_P(MixerScreenOnServers, AgreesWithOtherProgramsBothWays) {
    whileOpen([this] {
        const Slider& master = frmVolumeMixer->sldPlaybackVolume[0];
        CheckBox& mute = frmVolumeMixer->chkPlaybackMute[0];
        desk.server.control("set-sink-volume desk 50%");
        EXPECT_TRUE(comesTrue([&] { return master.Value() == 32767; })) << master.Value();
        desk.server.control("set-sink-mute desk 1");
        EXPECT_TRUE(comesTrue([&] { return mute.Value() == 1; }));
        mute.setValue(0);
        EXPECT_TRUE(serverSays("get-sink-mute desk", "no"));
        frmVolumeMixer->sldPlaybackVolume[0].setValue(0);
        EXPECT_TRUE(serverSays("get-sink-volume desk", "100%"));
        frmVolumeMixer->chkRecordSelect[recordingLine(QStringLiteral("Stereo Mix"))].setValue(1);
        EXPECT_TRUE(serverSays("get-default-source", "desk.monitor"));
        EXPECT_TRUE(comesTrue([] { return isSelected(QStringLiteral("Stereo Mix")); }));
    });
}

TEST_P(MixerScreenOnServers, PresetsLandOnTheirLines) {
    whileOpen([this] {
        frmVolumeMixer->radDevice[0].setValue(true);
        EXPECT_TRUE(comesTrue([] { return isSelected(QStringLiteral("Song Mix")); }));
        frmVolumeMixer->radDevice[4].setValue(true);
        EXPECT_TRUE(comesTrue([] { return isSelected(QStringLiteral("Stereo Mix")); }));
        EXPECT_TRUE(serverSays("get-source-volume desk.monitor", "85%"));
        desk.studio.desk().willAnswer(vbOK);
        frmVolumeMixer->radDevice[1].setValue(true);
        EXPECT_EQ(desk.studio.desk().takeBoxes().size(), 1U) << "there is no microphone";
        EXPECT_TRUE(serverSays("get-source-volume desk.monitor", " 0%"));
    });
}

TEST_P(MixerScreenOnServers, TheSongsOwnMixIsRecordedFrameForFrameWhateverElseSounds) {
    const Sound backtrack = ramp(2 * framesPerSecond);
    gBacktrackFile = desk.studio.path(QStringLiteral("tracks/ramp.wav"));
    writeWaveFile(gBacktrackFile.toStdString(), backtrack);
    whileOpen([] { frmVolumeMixer->radDevice[0].setValue(true); });
    desk.server.control("set-sink-mute desk 1");
    QProcess otherProgram;
    otherProgram.start(QStringLiteral("pacat"), {QStringLiteral("--raw"), QStringLiteral("/dev/urandom")});
    ASSERT_TRUE(otherProgram.waitForStarted());
    frmMixer.Show();
    desk.live(1s);
    frmMixer->cmdPlay.setValue(true);
    EXPECT_TRUE(desk.liveUntil([] { return frmMixer->cmdPlay.Enabled(); }, 20s));
    otherProgram.kill();
    otherProgram.waitForFinished();
    Sound recorded = framesOf(trackFilePath(1));
    ASSERT_GE(recorded.size(), backtrack.size());
    recorded.resize(backtrack.size());
    EXPECT_TRUE(recorded == backtrack);
}

INSTANTIATE_TEST_SUITE_P(Servers, MixerScreenOnServers, bothServers, serverName);

}  // namespace
}  // namespace lyrebrook
