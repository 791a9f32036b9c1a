#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>
#include <sstream>

#include "backtrack/FrmMixer.h"
#include "integration/support/ServerStudio.h"
#include "mixer/FrmVolumeMixer.h"
#include "mixer/masterMixer.h"
#include "mixer/modMixer.h"
#include "shell/modConfig.h"

namespace lyrebrook {
namespace {

/// The mixer screen on a real server with something in each of its sockets. `pactl` is the other program.
class MixerScreenOnServers : public testing::TestWithParam<ServerKind> {
  protected:
    MixerScreenOnServers() : desk(GetParam()) { addSources(); }

    void addSources() {
        desk.server.addSource("mic", "Microphone");
        desk.server.addSource("line", "Line In");
        desk.server.addSource("cd", "CD Audio");
        desk.live(500ms);
    }
    void whileOpen(const std::function<void()>& work) {
        desk.studio.desk().whileWaiting([work] {
            work();
            frmVolumeMixer.Unload();
        });
        showMasterMixer();
    }
    bool comesTrue(const std::function<bool()>& shown) { return desk.liveUntil(shown, 5s); }
    void expectSoon(const std::string& wanted, const std::function<std::string()>& told) {
        comesTrue([&] { return told() == wanted; });
        EXPECT_EQ(told(), wanted);
    }
    void pactl(const std::string& command) { desk.server.control(command); }

    /// Lines with what the screen shows of their levels, muted and selected ones marked.
    static std::string shown() {
        std::ostringstream text;
        for (const LineRow& row : {frmVolumeMixer->playbackRow(), frmVolumeMixer->recordingRow()}) {
            for (int i = 0; i < row.panels.Count() && row.panels[i].Visible(); ++i) {
                text << row.panels[i].Caption().toStdString() << ' ';
                if (row.volumes[i].Enabled()) text << row.percents[i].Text().toStdString() << ' ';
                if (row.choices[i].Value() == 1) text << "* ";
            }
        }
        return text.str();
    }
    /// The same of what the server has, with its default source.
    std::string served() const {
        const auto word = [this](const std::string& question, const std::string& before) {
            const std::string answer = desk.server.control(question);
            const std::size_t at = answer.find(before);
            return at == std::string::npos ? "none" : answer.substr(at + before.size(), 5);
        };
        std::ostringstream text;
        text << "desk " << std::stoi(word("get-sink-volume desk", "/")) << "% mute "
             << word("get-sink-mute desk", "Mute: ").substr(0, 2);
        for (const std::string source : {"mic", "line", "cd", "desk.monitor"})
            text << ", " << source << ' ' << std::stoi(word("get-source-volume " + source, "/")) << '%';
        std::string standard = desk.server.control("get-default-source");
        return text.str() + ", default " + standard.substr(0, standard.find('\n'));
    }

    ServerStudio desk;
};

TEST_P(MixerScreenOnServers, AgreesWithOtherProgramsBothWays) {
    whileOpen([this] {
        pactl("set-sink-volume desk 50%");
        pactl("set-sink-mute desk 1");
        pactl("set-source-volume line 30%");
        pactl("set-default-source line");
        expectSoon("Master 50 * Wave 100 Synth 100 Mic 100 Line 30 * CD 100 Stereo Mix 100 Song Mix ", shown);
        frmVolumeMixer->chkPlaybackMute[0].setValue(0);
        frmVolumeMixer->sldPlaybackVolume[0].setValue(0);
        frmVolumeMixer->sldRecordVolume[2].setValue(65535 / 2);
        frmVolumeMixer->chkRecordSelect[2].setValue(1);
        const std::string set = "desk 100% mute no, mic 100%, line 30%, cd 50%, desk.monitor 100%, default cd";
        expectSoon(set, [this] { return served(); });
        expectSoon("Master 100 Wave 100 Synth 100 Mic 100 Line 30 CD 50 * Stereo Mix 100 Song Mix ", shown);
    });
}

TEST_P(MixerScreenOnServers, EachPresetLeavesTheStateOfItsRow) {
    struct {
        const char* served;
        const char* shown;
    } const rows[] = {
        {"desk 100% mute no, mic 0%, line 0%, cd 0%, desk.monitor 85%, default desk.monitor",
         "Master 100 Wave 100 Synth 100 Mic 0 Line 0 CD 0 Stereo Mix 85 Song Mix * "},
        {"desk 20% mute no, mic 85%, line 0%, cd 0%, desk.monitor 0%, default mic",
         "Master 20 Wave 20 Synth 20 Mic 85 * Line 0 CD 0 Stereo Mix 0 Song Mix "},
        {"desk 100% mute no, mic 0%, line 0%, cd 85%, desk.monitor 0%, default cd",
         "Master 100 Wave 100 Synth 100 Mic 0 Line 0 CD 85 * Stereo Mix 0 Song Mix "},
        {"desk 100% mute no, mic 0%, line 85%, cd 0%, desk.monitor 0%, default line",
         "Master 100 Wave 100 Synth 100 Mic 0 Line 85 * CD 0 Stereo Mix 0 Song Mix "},
        {"desk 100% mute no, mic 0%, line 0%, cd 0%, desk.monitor 85%, default desk.monitor",
         "Master 100 Wave 100 Synth 100 Mic 0 Line 0 CD 0 Stereo Mix 85 * Song Mix "},
    };
    whileOpen([&] {
        int index = 0;
        for (const auto& row : rows) {
            pactl("set-sink-volume desk 50%");
            pactl("set-sink-mute desk 1");
            pactl("set-default-source line");
            for (const std::string source : {"mic", "line", "cd", "desk.monitor"})
                pactl("set-source-volume " + source + " 40%");
            const auto upset = [] {
                return shown().starts_with("Master 50 * ") && shown().find("Mix 40") != std::string::npos;
            };
            EXPECT_TRUE(comesTrue(upset)) << shown();
            frmVolumeMixer->radDevice[index++].setValue(true);
            expectSoon(row.served, [this] { return served(); });
            expectSoon(row.shown, shown);
        }
    });
}

TEST_P(MixerScreenOnServers, StaysAliveWhileTheServerIsAwayAndEndsRight) {
    whileOpen([this] {
        desk.server.kill();
        desk.live(1s);
        frmVolumeMixer->sldPlaybackVolume[0].setValue(30000);
        frmVolumeMixer->chkRecordSelect[1].setValue(1);
        frmVolumeMixer->radDevice[1].setValue(true);
        desk.server.start();
        addSources();
        pactl("set-sink-volume desk 25%");
        pactl("set-source-volume cd 60%");
        expectSoon("Master 25 Wave 20 Synth 20 Mic 100 * Line 100 CD 60 Stereo Mix 100 Song Mix ", shown);
        frmVolumeMixer->chkPlaybackMute[0].setValue(1);
        frmVolumeMixer->chkRecordSelect[2].setValue(1);
        const std::string set = "desk 25% mute ye, mic 100%, line 100%, cd 60%, desk.monitor 100%, default cd";
        expectSoon(set, [this] { return served(); });
    });
}

/// Has the recorder take the first seconds of a backtrack.
template <class Until>
Sound firstSeconds(const QString& backtrack, const Until& until) {
    gBacktrackFile = backtrack;
    frmMixer.Show();
    until([] { return false; }, 1s);
    frmMixer->cmdPlay.setValue(true);
    until([] { return false; }, 10s);
    frmMixer->cmdStop.setValue(true);
    until([] { return false; }, 1s);
    return framesOf(trackFilePath(1));
}

Sound onTheEmbeddedCard(const QString& backtrack) {
    const QTemporaryDir folder;
    CrankedStudio studio(folder.path());
    return firstSeconds(backtrack, [&](const auto& done, auto limit) { return studio.crankUntil(done, limit); });
}

class SongMixOnServers : public testing::TestWithParam<ServerKind> {};

TEST_P(SongMixOnServers, TakesTheDemoBacktrackFrameForFrameWhateverElseSounds) {
    const QString demo = QStringLiteral(LYREBROOK_DEMO_TRACK);
    Sound expected = onTheEmbeddedCard(demo);
    ServerStudio desk(GetParam());
    desk.studio.desk().whileWaiting([] {
        frmVolumeMixer->radDevice[0].setValue(true);
        frmVolumeMixer.Unload();
    });
    showMasterMixer();
    desk.server.control("set-sink-mute desk 1");
    QProcess otherProgram;
    otherProgram.start(QStringLiteral("pacat"), {QStringLiteral("--raw"), QStringLiteral("/dev/urandom")});
    ASSERT_TRUE(otherProgram.waitForStarted());
    Sound recorded = firstSeconds(demo, [&](const auto& done, auto limit) { return desk.liveUntil(done, limit); });
    otherProgram.kill();
    otherProgram.waitForFinished();
    constexpr std::size_t compared = 8 * framesPerSecond;
    ASSERT_GE(std::min(expected.size(), recorded.size()), compared);
    expected.resize(compared);
    recorded.resize(compared);
    EXPECT_GT(std::ranges::max(expected, {}, &StereoFrame::left).left, 3000);
    const auto difference = std::ranges::mismatch(expected, recorded);
    EXPECT_EQ(difference.in1 - expected.begin(), std::ssize(expected));
}

INSTANTIATE_TEST_SUITE_P(Servers, MixerScreenOnServers, bothServers, serverName);
INSTANTIATE_TEST_SUITE_P(Servers, SongMixOnServers, bothServers, serverName);

}  // namespace
}  // namespace lyrebrook
