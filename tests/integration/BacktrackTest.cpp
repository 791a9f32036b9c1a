#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>

#include "backtrack/FrmMixer.h"
#include "integration/support/ServerStudio.h"
#include "platform/music/MidiBytes.h"
#include "shell/modConfig.h"

namespace lyrebrook {
namespace {

/// A scale of two octaves on the piano, up and down, a note every quarter of a second.
std::string scale() {
    std::string notes;
    for (const int step : {0, 2, 4, 5, 7, 9, 11, 12, 14, 16, 17, 19, 21, 23, 24, 12, 0}) {
        notes += bytes({0, 0x90, 48 + step, 100, 25, 0x80, 48 + step, 0});
    }
    return midiFile({notes + endOfTrack});
}

/// Likeness of two sounds, 1 when they are the same, with one moved against the other by some frames.
double likeness(const Sound& one, const Sound& other, Frames moved) {
    double product = 0;
    double oneSquared = 0;
    double otherSquared = 0;
    for (Frames at = std::max<Frames>(0, -moved); at < std::ssize(one) && at + moved < std::ssize(other); ++at) {
        const double a = one[static_cast<std::size_t>(at)].left;
        const double b = other[static_cast<std::size_t>(at + moved)].left;
        product += a * b;
        oneSquared += a * a;
        otherSquared += b * b;
    }
    return product / std::sqrt(oneSquared * otherSquared + 1e-9);
}

double bestLikeness(const Sound& one, const Sound& other) {
    double best = -1;
    for (Frames moved = -500; moved <= 500; ++moved) best = std::max(best, likeness(one, other, moved));
    return best;
}

/// Gives the backtrack recorder a scale, and has it record that to its end.
using Until = std::function<bool(const std::function<bool()>& done, std::chrono::milliseconds limit)>;
Sound recordTheScale(const CrankedStudio& studio, const Until& until) {
    gSongName = QStringLiteral("My Song");
    gBacktrackFile = studio.path(QStringLiteral("tracks/scale.mid"));
    QFile file(gBacktrackFile);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(scale()));
    file.close();
    frmMixer.Show();
    until([] { return false; }, 1s);
    frmMixer->cmdPlay.setValue(true);
    EXPECT_TRUE(until([] { return frmMixer->cmdPlay.Enabled() && !frmMixer->cmdStop.Enabled(); }, 30s))
        << "the backtrack's end ends its recording";
    return framesOf(trackFilePath(1));
}

Sound recordedOnTheEmbeddedCard() {
    const QTemporaryDir folder;
    CrankedStudio studio(folder.path());
    return recordTheScale(studio, [&studio](const auto& done, auto limit) { return studio.crankUntil(done, limit); });
}

Sound recordedOnAServer(ServerKind kind) {
    ServerStudio desk(kind);
    return recordTheScale(desk.studio, [&desk](const auto& done, auto limit) { return desk.liveUntil(done, limit); });
}

class BacktrackOnAServer : public testing::TestWithParam<ServerKind> {};

TEST_P(BacktrackOnAServer, IsRecordedWholeThroughTheMonitor) {
    const Sound expected = recordedOnTheEmbeddedCard();
    const Sound recorded = recordedOnAServer(GetParam());
    ASSERT_GT(std::ssize(expected), 4 * framesPerSecond);
    EXPECT_NEAR(static_cast<double>(recorded.size()), static_cast<double>(expected.size()), framesPerSecond / 20.0);
    EXPECT_GT(bestLikeness(expected, recorded), 0.99);
}

INSTANTIATE_TEST_SUITE_P(Servers, BacktrackOnAServer, bothServers, serverName);

}  // namespace
}  // namespace lyrebrook
