#include "recorder/LevelBars.h"

#include "platform/sound/SoundDesk.h"
#include "recorder/soundBuffers.h"

namespace lyrebrook {
namespace {

class LevelBarsAtTheInput : public testing::Test {
  protected:
    LevelBarsAtTheInput() { desk.card->selectRecording(RecordingLine::lineIn); }

    void comesIn(std::size_t frames, StereoFrame sound) {
        desk.card->feed(CardLine::lineIn, Sound(frames, sound));
        desk.card->advance(static_cast<Frames>(frames));
    }

    SoundDesk desk;
    std::unique_ptr<DirectSoundCaptureBuffer8> buffer = startMeterCapture(desk.dsc);
    LevelBars bars;
};

TEST_F(LevelBarsAtTheInput, FollowTheMeanOfTheLastBlockOnEachSide) {
    comesIn(1024, {32767, 32767});
    comesIn(512, {100, -3000});
    comesIn(512, {-300, 3000});
    bars.UpdateVU(*buffer);
    EXPECT_NEAR(bars.left(), 864.9, 0.1) << "a mean of 200";
    EXPECT_NEAR(bars.right(), 1305.5, 0.1) << "a mean of 3000";
}

TEST_F(LevelBarsAtTheInput, WaitForAWholeBlockAfterTheStartAndAfterEachLap) {
    comesIn(1023, {9000, 9000});
    bars.UpdateVU(*buffer);
    EXPECT_EQ(bars.left(), LevelBars::restWidth);
    comesIn(8192 - 1023 + 1023, {9000, 9000});
    bars.UpdateVU(*buffer);
    EXPECT_EQ(bars.left(), LevelBars::restWidth);
    comesIn(1, {9000, 9000});
    bars.UpdateVU(*buffer);
    EXPECT_GT(bars.left(), 1000);
}

TEST_F(LevelBarsAtTheInput, StopAtFullScaleAndFallToTheRestWhichSilenceNeverMoves) {
    comesIn(1024, {-32768, 32767});
    bars.UpdateVU(*buffer);
    EXPECT_EQ(bars.left(), 1695);
    EXPECT_EQ(bars.right(), 1695);
    comesIn(1024, {0, 0});
    bars.UpdateVU(*buffer);
    EXPECT_EQ(bars.left(), 1695) << "only the decay lowers a bar";
    bars.DecayVU();
    EXPECT_DOUBLE_EQ(bars.left(), 1695 - 1695.0 * 1695.0 / 20000);
    for (int tick = 0; tick < 1000; ++tick) {
        bars.DecayVU();
        bars.UpdateVU(*buffer);
    }
    EXPECT_LE(bars.left(), 115);
    EXPECT_GT(bars.left(), 114) << "the floor is passed once";
}

}  // namespace
}  // namespace lyrebrook
