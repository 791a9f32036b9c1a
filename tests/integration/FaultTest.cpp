#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

#include "backtrack/FrmMixer.h"
#include "integration/support/ServerStudio.h"
#include "platform/sound/MixerBackend.h"
#include "recorder/FrmComposer.h"
#include "shell/modConfig.h"

namespace lyrebrook {
namespace {

constexpr const char* source = "mic";

constexpr const char* otherSource = "line";

void loadSource(ServerStudio& desk) {
    desk.server.control(std::string("load-module module-remap-source source_name=") + source +
                        " master=" + SoundServer::sink + ".monitor");
}

/// Something that happens to a recording, how it is put right, and what the screen tells about it.
struct Fault {
    const char* name;
    void (*strike)(ServerStudio& desk);
    void (*mend)(ServerStudio& desk);
    const char* loss;
    const char* back;
};

const Fault serverKilled{"serverKilled", [](ServerStudio& desk) { desk.server.kill(); },
                         [](ServerStudio& desk) {
                             desk.server.start();
                             loadSource(desk);
                         },
                         "The sound card is gone. What was recorded is kept.", "The sound card is back."};

const Fault sourceUnloaded{
    "sourceUnloaded", [](ServerStudio& desk) { desk.server.control("unload-module " + desk.server.moduleOf(source)); },
    loadSource, "The recording source is gone. What was recorded is kept.", "The recording source is back."};

const Fault otherDefault{
    "otherDefault", [](ServerStudio& desk) { desk.server.control(std::string("set-default-source ") + otherSource); },
    [](ServerStudio& desk) { desk.server.control(std::string("set-default-source ") + source); }, "", ""};

/// A recording screen, as the same session goes at both.
struct Screen {
    const char* name;
    int track;
    void (*open)();
    void (*record)();
    void (*stop)();
    QString (*notice)();
};

const Screen step3{"step3",
                   1,
                   [] { frmMixer.Show(); },
                   [] { frmMixer->cmdPlay.setValue(true); },
                   [] { frmMixer->cmdStop.setValue(true); },
                   [] { return frmMixer->lblNotice.Caption(); }};

const Screen step4{"step4",
                   2,
                   [] { frmComposer.Show(); },
                   [] { frmComposer->cmdRecord.setValue(true); },
                   [] { frmComposer->cmdStop.setValue(true); },
                   [] { return frmComposer->lblNotice.Caption(); }};

struct Clicks {
    int due = 0;
    int heard = 0;
};

/// A null sink that comes back plays up to so much silence first.
constexpr std::chrono::seconds longestWaking{2};

constexpr Frames tolerance = framesPerSecond * 30 / 1000;

/// The clicks that a recording ought to hold in a part of it, and those that it holds in their places.
Clicks clicksIn(const Sound& sound, Frames from, Frames to) {
    Clicks found;
    for (Frames click = (from + clickDistance - 1) / clickDistance * clickDistance; click < to;
         click += clickDistance) {
        const auto first = sound.begin() + std::max<Frames>(0, click - tolerance);
        const auto last = sound.begin() + std::min(static_cast<Frames>(sound.size()), click + tolerance);
        ++found.due;
        if (std::any_of(first, last, [](StereoFrame frame) { return frame.left > 4000; })) ++found.heard;
    }
    return found;
}

/// Those of its last second.
Clicks lastClicks(const Sound& sound) {
    const Frames end = static_cast<Frames>(sound.size()) - tolerance;
    return clicksIn(sound, end - framesPerSecond, end);
}

class Faults : public testing::TestWithParam<std::tuple<ServerKind, Fault, Screen>> {
  protected:
    Faults() {
        loadSource(desk);
        desk.server.control("load-module module-null-sink sink_name=other");
        desk.server.control(std::string("load-module module-remap-source source_name=") + otherSource +
                            " master=other.monitor");
        desk.server.control(std::string("set-default-source ") + source);
        mixer = desk.card->mixer()->open(0, [](const MixerChange&) {});
        desk.card->selectSource({.kind = RecordingSource::Kind::named, .name = source});
        gBacktrackFile = desk.studio.path(QStringLiteral("tracks/clicks.wav"));
        for (const QString& file : {gBacktrackFile, trackFilePath(1)}) {
            writeWaveFile(file.toStdString(), clicks(60 * framesPerSecond));
        }
        screen.open();
        desk.live(1s);
    }

    bool tells(const char* text) {
        const QString wanted = QString::fromLatin1(text);
        return desk.liveUntil([&] { return screen.notice() == wanted; }, 16s);
    }

    bool isLoss() const { return *fault.loss != 0; }

    /// A machine that is busy with other work may have come too late for a click.
    bool isWhole(const Clicks& clicks) const {
        return clicks.heard + static_cast<int>(desk.card->underruns() - before) >= clicks.due;
    }

    Sound recorded() const { return framesOf(trackFilePath(screen.track)); }

    const Fault& fault = std::get<1>(GetParam());
    const Screen& screen = std::get<2>(GetParam());
    ServerStudio desk{std::get<0>(GetParam())};
    std::uint32_t before = 0;            // underruns, when the recording began
    std::unique_ptr<MixerDevice> mixer;  // the one that follows other programs
};

TEST_P(Faults, LeaveTheTakeWholeAndTheNextOneToo) {
    before = desk.card->underruns();
    screen.record();
    desk.live(2300ms);
    fault.strike(desk);
    EXPECT_TRUE(tells(fault.loss));
    desk.live(1s);
    fault.mend(desk);
    EXPECT_TRUE(tells(fault.back));
    desk.live(longestWaking + 1500ms);
    screen.stop();
    const Sound take = recorded();
    const Clicks kept = clicksIn(take, tolerance, 2 * framesPerSecond + tolerance);
    const Clicks afterwards = lastClicks(take);
    EXPECT_TRUE(isWhole(kept));
    EXPECT_TRUE(isWhole(afterwards)) << "the same take goes on";
    const Clicks all = clicksIn(take, tolerance, static_cast<Frames>(take.size()) - tolerance);
    EXPECT_EQ(isWhole(all), !isLoss()) << "a hole only where something was lost";

    before = desk.card->underruns();
    screen.record();
    desk.live(1500ms);
    screen.stop();
    const Clicks again = lastClicks(recorded());
    EXPECT_TRUE(isWhole(again));
    std::printf("FAULT %s %s %s kept %d of %d, goes on %d of %d, again %d of %d\n",
                nameOf(std::get<0>(GetParam())).c_str(), fault.name, screen.name, kept.heard, kept.due,
                afterwards.heard, afterwards.due, again.heard, again.due);
}

INSTANTIATE_TEST_SUITE_P(Servers, Faults,
                         testing::Combine(testing::Values(ServerKind::pulseAudio, ServerKind::pipeWire),
                                          testing::Values(serverKilled, sourceUnloaded, otherDefault),
                                          testing::Values(step3, step4)),
                         [](const auto& test) {
                             return nameOf(std::get<0>(test.param)) + std::get<1>(test.param).name +
                                    std::get<2>(test.param).name;
                         });

}  // namespace
}  // namespace lyrebrook
