#include <gmock/gmock.h>

#include "integration/support/LevelMover.h"
#include "integration/support/ServerDesk.h"
#include "platform/winmm/MixerDesk.h"

namespace lyrebrook {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr auto speakers = MixerDesk::speakers;
constexpr auto waveIn = MixerDesk::waveIn;
constexpr auto volume = MixerDesk::volume;
constexpr auto mute = MixerDesk::mute;
constexpr auto mux = MixerDesk::mux;
constexpr std::int32_t half = 32768;

/// A real server with a singer's microphone beside its sink, and a mixer open on it. `pactl` is the other program.
class MixerOnServers : public testing::TestWithParam<ServerKind> {
  protected:
    MixerOnServers() : sound(GetParam()) {
        sound.server.addSource("singer", "Singer");
        desk = std::make_unique<MixerDesk>();
        master = desk->line(speakers);
    }

    /// The window hears of a control, and it then stands like that.
    bool hears(std::int32_t line, std::int32_t type, const std::vector<std::int32_t>& values) {
        std::vector<WindowMessage> heard;
        return waitUntil(
            [&] {
                for (const WindowMessage& message : ListeningWindow::listen()) heard.push_back(message);
                const auto channels = type == volume ? static_cast<std::int32_t>(values.size()) : 1;
                return std::ranges::count(heard, desk->changeOf(line, type)) > 0 &&
                       desk->get(line, type, channels) == values;
            },
            5s);
    }
    /// And waits until the mixer has seen that.
    void selectStereoMix() {
        desk->select("Stereo Mix");
        EXPECT_TRUE(serverSays("get-default-source", "desk.monitor"));
        sound.server.control("set-sink-volume desk 0");
        EXPECT_TRUE(hears(master, volume, {0, 0}));
    }
    bool serverSays(const std::string& question, const std::string& answer) {
        return waitUntil([&] { return sound.server.control(question).find(answer) != npos; }, 5s);
    }
    /// Where the program's capture is taken from, by the server's word.
    bool capturesFrom(const std::string& source) {
        return waitUntil([&] { return sound.server.control("list source-outputs").find(indexOf(source)) != npos; }, 8s);
    }
    std::string indexOf(const std::string& source) const {
        std::istringstream sources(sound.server.control("list short sources"));
        for (std::string line; std::getline(sources, line);) {
            if (line.find('\t' + source + '\t') != npos) return "Source: " + line.substr(0, line.find('\t')) + '\n';
        }
        return "no such source";
    }

    static constexpr auto npos = std::string::npos;
    ServerDesk sound;
    std::unique_ptr<MixerDesk> desk;
    std::int32_t master = 0;
};

TEST_P(MixerOnServers, LinesAreTheSinkTheProgramsBusesAndTheSources) {
    EXPECT_THAT(desk->names(speakers), ElementsAre("Wave", "SW Synth"));
    EXPECT_THAT(desk->names(waveIn), ElementsAre("Singer", "Stereo Mix", "Song Mix"));
    EXPECT_EQ(desk->selected(), "Stereo Mix");
}

TEST_P(MixerOnServers, VolumeAndMuteAgreeWithOtherProgramsBothWays) {
    sound.server.control("set-sink-volume desk 50% 25%");
    EXPECT_TRUE(hears(master, volume, {half, half / 2}));
    sound.server.control("set-sink-mute desk 1");
    EXPECT_TRUE(hears(master, mute, {1}));
    sound.server.control("set-source-volume singer 0");
    EXPECT_TRUE(hears(desk->line(waveIn, "Singer"), volume, {0, 0}));

    EXPECT_EQ(desk->set(master, volume, {half / 2, 65535}), MMSYSERR_NOERROR);
    EXPECT_EQ(desk->get(master, volume, 2), (std::vector{half / 2, 65535})) << "what was set reads so at once";
    EXPECT_TRUE(serverSays("get-sink-volume desk", "front-left: 16384 "));
    EXPECT_TRUE(serverSays("get-sink-volume desk", "front-right: 65536 "));
    desk->set(master, mute, {0});
    EXPECT_TRUE(serverSays("get-sink-mute desk", "no"));
    desk->set(desk->line(waveIn, "Stereo Mix"), volume, {half, half});
    EXPECT_TRUE(serverSays("get-source-volume desk.monitor", "50%"));
}

TEST_P(MixerOnServers, WhatIsSetLastStandsHoweverSoonItComes) {
    for (const auto gap : {0us, 200us, 500us, 1000us, 2000us, 5000us, 20000us}) {
        desk->set(master, volume, {0, 0});
        desk->set(master, mute, {1});
        std::this_thread::sleep_for(gap);
        desk->set(master, volume, {65535, 65535});
        desk->set(master, mute, {0});
        wait(150ms);
        EXPECT_TRUE(serverSays("get-sink-volume desk", "front-left: 65536 ")) << gap.count();
        EXPECT_TRUE(serverSays("get-sink-mute desk", "no")) << gap.count();
    }
}

TEST_P(MixerOnServers, SelectingMovesTheCaptureAndTheDefaultSource) {
    desk->select("Singer");
    EXPECT_EQ(desk->selected(), "Singer");
    EXPECT_TRUE(serverSays("get-default-source", "singer"));
    EXPECT_TRUE(capturesFrom("singer"));
    desk->select("Stereo Mix");
    EXPECT_TRUE(serverSays("get-default-source", "desk.monitor"));
    EXPECT_TRUE(capturesFrom("desk.monitor"));
    EXPECT_EQ(desk->selected(), "Stereo Mix");
}

TEST_P(MixerOnServers, ASourceMayBeLeftWhileTheServerStillAnswersForIt) {
    for (int times = 0; times < 80; ++times) {
        desk->select("Stereo Mix");
        wait(std::chrono::milliseconds(25 + times % 20));
        desk->select("Song Mix");
        wait(2ms);
    }
    desk->select("Singer");
    EXPECT_TRUE(capturesFrom("singer"));
}

TEST_P(MixerOnServers, ADefaultSourceThatSomebodyChoseMovesTheSelection) {
    selectStereoMix();
    sound.server.control("set-default-source singer");
    EXPECT_TRUE(hears(desk->line(waveIn), mux, {1, 0, 0}));
    EXPECT_TRUE(capturesFrom("singer"));

    desk->select("Song Mix");
    sound.server.control("set-default-source desk.monitor");
    sound.server.control("set-sink-mute desk 1");
    EXPECT_TRUE(hears(master, mute, {1}));
    EXPECT_EQ(desk->selected(), "Song Mix") << "the song's own output is not for others to take away";
}

TEST_P(MixerOnServers, ARecordingEndsOnTheSourceItBeganWith) {
    selectStereoMix();
    const auto take = sound.capture(framesPerSecond);
    take->Start(0);
    sound.server.control("set-default-source singer");
    sound.server.control("set-sink-mute desk 1");
    EXPECT_TRUE(hears(master, mute, {1}));
    EXPECT_EQ(desk->selected(), "Stereo Mix");
    take->Stop();
    EXPECT_EQ(desk->selected(), "Singer");
    EXPECT_TRUE(capturesFrom("singer"));
}

TEST_P(MixerOnServers, AThousandChangesASecondAreFewMessagesAndEndRight) {
    constexpr std::chrono::milliseconds length{1000};
    const auto begun = std::chrono::steady_clock::now();
    std::jthread mover([] { moveLevel(SoundServer::sink, 1000, length); });
    std::size_t messages = 0;
    const auto listen = [&] {
        messages += ListeningWindow::listen().size();
        return std::chrono::steady_clock::now() - begun > length &&
               desk->get(master, volume, 2) == std::vector{half, half};
    };
    EXPECT_TRUE(waitUntil(listen, 10s));
    const auto looks = (std::chrono::steady_clock::now() - begun) / 20ms;
    EXPECT_GT(messages, 10U);
    EXPECT_LE(messages, static_cast<std::size_t>(looks) + 2);
}

TEST_P(MixerOnServers, ASourceThatGoesAwayTakesNothingAlong) {
    desk->select("Singer");
    EXPECT_TRUE(serverSays("get-default-source", "singer"));
    const std::int32_t singer = desk->line(waveIn, "Singer");
    desk->set(singer, volume, {half, half});
    EXPECT_TRUE(serverSays("get-source-volume singer", "50%"));
    const std::string module =
        GetParam() == ServerKind::pulseAudio ? "module-null-source" : sound.server.moduleOf("singer");
    sound.server.control("unload-module " + module);
    EXPECT_TRUE(waitUntil([this] { return indexOf("singer") == "no such source"; }, 5s));
    EXPECT_TRUE(waitUntil([&] { return desk->set(singer, volume, {half, half}) != MMSYSERR_NOERROR; }, 5s));
    EXPECT_EQ(desk->get(singer, volume, 2), (std::vector{half, half}));
    EXPECT_EQ(desk->selected(), "Singer") << "the server's next best is nobody's choice";
    sound.server.addSource("singer", "Singer");
    EXPECT_TRUE(waitUntil([&] { return desk->set(singer, volume, {0}) == MMSYSERR_NOERROR; }, 5s));
    EXPECT_TRUE(serverSays("get-source-volume singer", " 0%"));
}

TEST_P(MixerOnServers, AServerThatDiesAndReturnsIsSurvived) {
    sound.server.control("set-sink-volume desk 50%");
    EXPECT_TRUE(hears(master, volume, {half, half}));
    sound.server.kill();
    EXPECT_TRUE(waitUntil([&] { return desk->set(master, mute, {1}) != MMSYSERR_NOERROR; }, 5s));
    EXPECT_EQ(desk->get(master, volume, 2), (std::vector{half, half})) << "it stands as it stood last";
    sound.server.start();
    sound.server.control("set-sink-volume desk 25%");
    EXPECT_TRUE(hears(master, volume, {half / 2, half / 2}));
    desk->set(master, mute, {1});
    EXPECT_TRUE(serverSays("get-sink-mute desk", "yes"));
}

TEST_P(MixerOnServers, SongMixIsTheProgramsOwnBusesAtTheirLevels) {
    desk->select("Song Mix");
    desk->set(desk->line(speakers, "Wave"), volume, {65535, 0});
    sound.server.control("set-sink-mute desk 1");
    const Frames reached = SoundSystem::engine()->mixedFrames() + framesPerSecond / 10;
    EXPECT_TRUE(waitUntil([&] { return SoundSystem::engine()->mixedFrames() > reached; }, 5s));
    const auto song = sound.buffer(Sound(framesPerSecond, {10000, 10000}));
    const auto take = sound.capture(framesPerSecond / 2);
    {
        const SoundTransaction together(SoundSystem::engine());
        song->Play(0);
        take->Start(0);
    }
    EXPECT_TRUE(waitUntil([&] { return capturedFrames(*take) == framesPerSecond / 2; }, 5s));
    EXPECT_EQ(captured(*take), Sound(framesPerSecond / 2, {10000, 0}));
}

INSTANTIATE_TEST_SUITE_P(Servers, MixerOnServers, bothServers, serverName);

}  // namespace
}  // namespace lyrebrook
