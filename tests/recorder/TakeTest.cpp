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
    }

    /// Voice 1 with a take of 2 seconds laid over it, as it would be saved.
    Sound recordedAt(std::size_t start) {
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
    Sound oldPart(std::size_t from, std::size_t to) const { return {old.data() + from, old.data() + to}; }

    const Sound old = ramp(5 * second);
    const Sound sung = ramp(2 * second, 7000);
    Take take;
};

TEST_F(TakeOnVoice1, ReplacesWhatItCoversAndNothingElse) {
    load();
    EXPECT_TRUE(recordedAt(second) == oldPart(0, second) + sung + oldPart(3 * second, 5 * second));
    load();
    EXPECT_TRUE(recordedAt(4 * second) == oldPart(0, 4 * second) + sung) << "the track grows";
    EXPECT_EQ(tracks.songBytes(), 25 * bytesPerSecond) << "but the song doesn't";
    load();
    EXPECT_TRUE(recordedAt(10 * second) == old + Sound(5 * second) + sung) << "silence between an old end and a take";
    load();
    QFile::remove(trackFilePath(2));
    EXPECT_TRUE(recordedAt(second) == oldPart(0, second) + sung) << "what lay before stays though the file is gone";
}

}  // namespace
}  // namespace lyrebrook
