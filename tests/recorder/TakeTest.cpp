#include "recorder/Take.h"

#include "recorder/RecorderDesk.h"

namespace lyrebrook {
namespace {

constexpr Frames second = framesPerSecond;

/// Voice 1 is 5 seconds long, in a song of 25.
class TakeOnVoice1 : public RecorderDesk {
  protected:
    TakeOnVoice1() {
        give(1, ramp(25 * second));
        give(2, old);
    }

    /// Voice 1 with a take of 2 seconds laid over it, as it would be saved.
    Sound recordedAt(Frames start) {
        take.CreateRecordBuffer(dsc, 25);
        tracks.trackBuffer(1).SetCurrentPosition(toBytes(start));
        take.punchIn(tracks, 2);
        card->selectRecording(RecordingLine::microphone);
        card->feed(CardLine::microphone, sung);
        card->advance(2 * second);
        tracks.replaceBuffer(2, take.GetSoundBufferFromCapture(ds, tracks, 2));
        return content(tracks.trackBuffer(2), wholeFrames(tracks.soundBytes(2)));
    }

    const Sound old = ramp(5 * second);
    const Sound sung = ramp(2 * second, 7000);
    Take take;
};

TEST_F(TakeOnVoice1, ReplacesWhatItCoversAndNothingElse) {
    load();
    EXPECT_TRUE(recordedAt(second) == part(old, 0, second) + sung + part(old, 3 * second, 2 * second));
    load();
    EXPECT_TRUE(recordedAt(4 * second) == part(old, 0, 4 * second) + sung) << "the track grows";
    EXPECT_EQ(tracks.songBytes(), 25 * bytesPerSecond) << "but the song doesn't";
    load();
    EXPECT_TRUE(recordedAt(10 * second) == old + silence(5 * second) + sung) << "silence between an old end and a take";
    load();
    QFile::remove(trackFilePath(2));
    EXPECT_TRUE(recordedAt(second) == part(old, 0, second) + sung) << "what lay before stays though the file is gone";
}

}  // namespace
}  // namespace lyrebrook
