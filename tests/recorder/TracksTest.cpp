#include "recorder/Tracks.h"

#include "recorder/RecorderDesk.h"
#include "recorder/waveLength.h"

namespace lyrebrook {
namespace {

using testing::IsEmpty;

class SongOfTracks : public RecorderDesk {};

TEST_F(SongOfTracks, IsAsLongAsItsLongestFileAndATieGoesToTheLowerNumber) {
    give(1, ramp(100));
    give(2, ramp(300));
    give(4, ramp(300));
    EXPECT_THAT(load(), IsEmpty());
    EXPECT_EQ(tracks.songBytes(), 1200);
    EXPECT_EQ(tracks.longestTrack(), 2);
    tracks.trackBuffer(2).SetCurrentPosition(900);
    EXPECT_EQ(tracks.getPosition(2), 0.75F);
    EXPECT_TRUE(tracks.trackExists(4));
    EXPECT_FALSE(tracks.trackExists(3));
}

TEST_F(SongOfTracks, IsMeasuredOnTheDiskAsItIsNow) {
    give(2, ramp(100));
    load();
    EXPECT_EQ(getWaveLength(2), 400);
    EXPECT_EQ(getWaveLength(3), 0);
    giveBytes(2, QByteArray(44, 'x'));
    EXPECT_EQ(getWaveLength(2), 0);
    giveBytes(2, QByteArray(20, 'x'));
    EXPECT_EQ(getWaveLength(2), 0);
    QFile::remove(trackFilePath(2));
    EXPECT_EQ(getWaveLength(2), 0);
    EXPECT_TRUE(tracks.trackExists(2)) << "until the next load";
    EXPECT_TRUE(tracks.bufferHoldsFile(2)) << "nothing is there to be lost";
    load();
    EXPECT_FALSE(tracks.trackExists(2));
    EXPECT_EQ(tracks.getPosition(tracks.longestTrack()), 0) << "a song of nothing has a place all the same";
}

struct BadFile {
    const char* what;
    std::function<QByteArray(QByteArray whole)> spoil;
    bool readable;
    bool held;
};

class BadTrackFile : public RecorderDesk, public testing::WithParamInterface<BadFile> {};

TEST_P(BadTrackFile, IsToldWhenItGivesNoSoundAndIsNeverTakenForHeldWhenSomethingWouldBeLost) {
    give(1, ramp(100));
    give(2, ramp(1000));
    giveBytes(2, GetParam().spoil(bytesOf(2)));
    const auto unreadable = load();
    EXPECT_EQ(unreadable.empty(), GetParam().readable);
    EXPECT_EQ(tracks.bufferHoldsFile(2), GetParam().held);
    EXPECT_TRUE(tracks.bufferHoldsFile(1));
    if (unreadable.empty()) return;
    EXPECT_EQ(unreadable[0].track, 2);
    tracks.trackBuffer(2).Play(0);
    card->advance(10);
    EXPECT_EQ(tracks.playCursor(2), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, BadTrackFile,
    testing::Values(BadFile{"cutInTheHeader", [](QByteArray whole) { return whole.left(30); }, false, false},
                    BadFile{"cutInTheSound", [](QByteArray whole) { return whole.left(2044); }, true, true},
                    BadFile{"ofOddLength", [](QByteArray whole) { return whole.left(2047); }, true, true},
                    BadFile{"withASizeOfNothing", [](QByteArray whole) { return whole.replace(40, 4, "\0\0\0\0", 4); },
                            true, false},
                    BadFile{"ofAnotherRate", [](QByteArray whole) { return whole.replace(24, 2, "\x22\x56", 2); }, true,
                            false},
                    BadFile{"ofNoSound", [](QByteArray) { return QByteArray(5000, 'x'); }, false, false}),
    [](const auto& kind) { return kind.param.what; });

}  // namespace
}  // namespace lyrebrook
