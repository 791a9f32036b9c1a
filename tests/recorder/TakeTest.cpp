#include "recorder/Take.h"

#include "platform/base/RuntimeError.h"
#include "recorder/RecorderDesk.h"
#include "recorder/TakeTable.h"

namespace lyrebrook {
namespace {

constexpr std::size_t second = framesPerSecond;

class TakeOnVoice1 : public RecorderDesk {
  protected:
    /// Voice 1 with `sung` laid over it from `start` on, as the file would be.
    Sound record(std::size_t start, const Sound& sung) {
        load();
        DirectSoundCapture8 capture(SoundSystem::engine());
        take.CreateRecordBuffer(capture, 30);
        tracks.trackBuffer(1).SetCurrentPosition(toBytes(static_cast<Frames>(start)));
        take.punchIn(tracks, 2);
        card->selectRecording(RecordingLine::microphone);
        card->feed(CardLine::microphone, sung);
        card->advance(static_cast<Frames>(sung.size()));
        const auto merged = take.GetSoundBufferFromCapture(*ds, tracks, 2);
        if (!merged) return {};
        merged->SaveToFile(trackFilePath(2).toStdString());
        tracks.replaceBuffer(2, take.GetSoundBufferFromCapture(*ds, tracks, 2));
        return saved();
    }

    static Sound saved() {
        const QByteArray bytes = bytesOf(2).mid(headerBytes);
        Sound sound(static_cast<std::size_t>(bytes.size()) / bytesPerFrame);
        std::memcpy(sound.data(), bytes.constData(), static_cast<std::size_t>(bytes.size()));
        return sound;
    }

    Take take;
};

TEST_F(TakeOnVoice1, ReplacesExactlyTheBytesThatItCovers) {
    const Sound old = ramp(20 * second);
    const Sound sung = ramp(5 * second, 7000);
    give(1, ramp(25 * second));
    give(2, old);
    const Sound now = record(10 * second, sung);
    ASSERT_EQ(now.size(), old.size());
    EXPECT_TRUE(part(now, 0, 10 * second) == part(old, 0, 10 * second));
    EXPECT_TRUE(part(now, 10 * second, 15 * second) == sung);
    EXPECT_TRUE(part(now, 15 * second, 20 * second) == part(old, 15 * second, 20 * second));
}

TEST_F(TakeOnVoice1, LeavesSilenceBetweenAnOldEndAndItsStart) {
    const Sound old = ramp(5 * second);
    const Sound sung = ramp(3 * second, 7000);
    give(1, ramp(25 * second));
    give(2, old);
    const Sound now = record(10 * second, sung);
    ASSERT_EQ(now.size(), 13 * second);
    EXPECT_TRUE(part(now, 0, 5 * second) == old);
    EXPECT_TRUE(part(now, 5 * second, 10 * second) == Sound(5 * second));
    EXPECT_TRUE(part(now, 10 * second, 13 * second) == sung);
}

TEST_F(TakeOnVoice1, GrowsATrackOverItsEndAndThenCountsAsTheTrack) {
    give(1, ramp(25 * second));
    give(2, ramp(5 * second));
    record(4 * second, ramp(2 * second, 7000));
    EXPECT_EQ(tracks.soundBytes(2), 6 * bytesPerSecond);
    EXPECT_TRUE(tracks.trackExists(2));
    EXPECT_TRUE(tracks.bufferHoldsFile(2));
    EXPECT_EQ(tracks.songBytes(), 25 * bytesPerSecond);
}

TEST_F(TakeOnVoice1, WithoutSoundIsNothing) {
    give(1, ramp(25 * second));
    EXPECT_TRUE(record(0, {}).empty());
    EXPECT_FALSE(QFile::exists(trackFilePath(2)));
}

TEST_F(TakeOnVoice1, KeepsAnOldTrackWhoseFileVanishedUpToTheTakesEnd) {
    give(1, ramp(25 * second));
    give(2, ramp(5 * second));
    load();
    const Sound old = ramp(5 * second);
    QFile::remove(trackFilePath(2));
    DirectSoundCapture8 capture(SoundSystem::engine());
    take.CreateRecordBuffer(capture, 30);
    tracks.trackBuffer(1).SetCurrentPosition(toBytes(second));
    take.punchIn(tracks, 2);
    card->advance(second);
    take.GetSoundBufferFromCapture(*ds, tracks, 2)->SaveToFile(trackFilePath(2).toStdString());
    ASSERT_EQ(saved().size(), 2 * second);
    EXPECT_TRUE(part(saved(), 0, second) == part(old, 0, second));
}

TEST_F(TakeOnVoice1, LiesWhereTheMusicWasWhenItCameIn) {
    give(1, ramp(4 * second));
    load();
    DirectSoundCapture8 capture(SoundSystem::engine());
    tracks.trackBuffer(1).Play(0);
    card->advance(12345);
    take.CreateRecordBuffer(capture, 4);
    take.punchIn(tracks, 2);
    card->advance(second);
    tracks.replaceBuffer(2, take.GetSoundBufferFromCapture(*ds, tracks, 2));
    Sound echo(second);
    tracks.trackBuffer(2).ReadBuffer(take.recordStart(), bytesPerSecond, std::as_writable_bytes(std::span(echo)), 0);
    EXPECT_TRUE(echo == part(ramp(4 * second), 12345, 12345 + second)) << "what the card played, on its own frame";
}

TEST(TableOfTakes, HasRoomFor99) {
    TakeTable takes;
    takes.takeCount = 99;
    takes.note({.start = 8, .length = 4});
    EXPECT_EQ(takes[99].start, 8);
    ++takes.takeCount;
    EXPECT_THROW(takes.note({}), RuntimeError);
}

}  // namespace
}  // namespace lyrebrook
