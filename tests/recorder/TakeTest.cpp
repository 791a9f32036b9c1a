#include "recorder/Take.h"

#include "recorder/RecorderDesk.h"

namespace lyrebrook {
namespace {

constexpr std::size_t second = framesPerSecond;

/// Voice 1 is 5 seconds long, in a song of 25.
class TakeOnVoice1 : public RecorderDesk {
  protected:
    TakeOnVoice1() {
        give(1, ramp(25 * second));
        give(2, old);
        load();
    }

    /// Voice 1 with a take of 2 seconds laid over it.
    Sound record(std::size_t start) {
        DirectSoundCapture8 capture(SoundSystem::engine());
        take.CreateRecordBuffer(capture, 25);
        tracks.trackBuffer(1).SetCurrentPosition(toBytes(static_cast<Frames>(start)));
        take.punchIn(tracks, 2);
        card->selectRecording(RecordingLine::microphone);
        card->feed(CardLine::microphone, sung);
        card->advance(2 * second);
        tracks.replaceBuffer(2, take.GetSoundBufferFromCapture(*ds, tracks, 2));
        Sound merged(static_cast<std::size_t>(tracks.soundBytes(2)) / bytesPerFrame);
        tracks.trackBuffer(2).ReadBuffer(0, 0, std::as_writable_bytes(std::span(merged)), DSBLOCK_ENTIREBUFFER);
        return merged;
    }

    const Sound old = ramp(5 * second);
    const Sound sung = ramp(2 * second, 7000);
    Take take;
};

TEST_F(TakeOnVoice1, LeavesSilenceBetweenAnOldEndAndItsStart) {
    const Sound now = record(10 * second);
    ASSERT_EQ(now.size(), 12 * second);
    EXPECT_TRUE(part(now, 0, 5 * second) == old);
    EXPECT_TRUE(part(now, 5 * second, 10 * second) == Sound(5 * second));
    EXPECT_TRUE(part(now, 10 * second, 12 * second) == sung);
}

TEST_F(TakeOnVoice1, GrowsTheTrackButNotTheSong) {
    const Sound now = record(4 * second);
    ASSERT_EQ(now.size(), 6 * second);
    EXPECT_TRUE(part(now, 0, 4 * second) == part(old, 0, 4 * second));
    EXPECT_TRUE(part(now, 4 * second, 6 * second) == sung);
    EXPECT_EQ(tracks.songBytes(), 25 * bytesPerSecond);
}

TEST_F(TakeOnVoice1, KeepsWhatLayBeforeItWhenTheFileVanishedMeanwhile) {
    QFile::remove(trackFilePath(2));
    const Sound now = record(second);
    ASSERT_EQ(now.size(), 3 * second);
    EXPECT_TRUE(part(now, 0, second) == part(old, 0, second));
    EXPECT_TRUE(part(now, second, 3 * second) == sung);
}

}  // namespace
}  // namespace lyrebrook
