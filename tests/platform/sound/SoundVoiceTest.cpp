#include "platform/sound/SoundVoice.h"

#include <algorithm>

#include "SoundDesk.h"

namespace lyrebrook {
namespace {

/// A tone of constant height and fixed length.
class Plateau final : public SoundSource {
  public:
    explicit Plateau(std::size_t frames) : left_(frames) {}

    std::size_t render(std::span<float> samples) noexcept override {
        const std::size_t frames = std::min(left_, samples.size() / 2);
        std::ranges::fill(samples.first(2 * frames), 0.25F);
        left_ -= frames;
        return frames;
    }

  private:
    std::size_t left_;
};

SoundVoice voiceOf(std::size_t frames, SoundBus bus = SoundBus::softwareSynth) {
    return {SoundSystem::engine(), std::make_unique<Plateau>(frames), bus};
}

const StereoFrame quarter{8192, 8192};

TEST(SoundVoice, TheEndIsToldWhenItsLastFrameCouldBeCaptured) {
    for (const Frames latency : {0, 300, 5000}) {
        SoundDesk desk(latency);
        SoundVoice voice = voiceOf(1000);
        SoundVoice early = voiceOf(1000);
        const auto take = desk.capture(9000);
        early.start();
        desk.card->advance(1512);
        EXPECT_TRUE(early.endedAndCaptured()) << "nothing records";
        take->Start(0);
        voice.start();
        desk.card->advance(999 + latency);
        EXPECT_FALSE(voice.endedAndCaptured()) << latency;
        // The end is seen in the first step that finds the source empty.
        desk.card->advance(512);
        ASSERT_TRUE(voice.endedAndCaptured()) << latency;
        EXPECT_EQ(part(captured(*take), 0, 1001), Sound(1000, quarter) + silence(1));
    }
}

TEST(SoundVoice, AnInputThatStaysDeadIsNotWaitedForLongerThanTwoSeconds) {
    SoundDesk desk;
    SoundVoice voice = voiceOf(1000);
    const auto take = desk.capture(9000);
    desk.card->loseInput(10 * framesPerSecond);
    take->Start(0);
    voice.start();
    desk.card->advance(2 * framesPerSecond);
    EXPECT_FALSE(voice.endedAndCaptured());
    desk.card->advance(2000);
    EXPECT_TRUE(voice.endedAndCaptured());
}

TEST(SoundVoice, AStoppedVoiceTellsNoEndAndGoesOnWhereItStood) {
    SoundDesk desk;
    SoundVoice voice = voiceOf(1000);
    voice.start();
    desk.card->advance(600);
    voice.stop();
    desk.card->advance(600);
    EXPECT_FALSE(voice.endedAndCaptured());
    voice.start();
    desk.card->advance(600);
    EXPECT_TRUE(voice.endedAndCaptured());
    EXPECT_EQ(desk.heard, Sound(600, quarter) + silence(600) + Sound(400, quarter) + silence(200));
    voice.start();
    EXPECT_FALSE(voice.endedAndCaptured());
}

TEST(SoundVoice, StoppingBetweenTheLastFrameAndItsCaptureTakesTheEndBack) {
    SoundDesk desk(2000);
    SoundVoice voice = voiceOf(100);
    const auto take = desk.capture(9000);
    take->Start(0);
    voice.start();
    desk.card->advance(1000);
    voice.stop();
    desk.card->advance(4000);
    EXPECT_FALSE(voice.endedAndCaptured());
}

TEST(SoundVoice, EachBusHasItsLineOnTheCard) {
    SoundDesk desk;
    SoundVoice synth = voiceOf(4000, SoundBus::softwareSynth);
    SoundVoice wave = voiceOf(4000, SoundBus::wave);
    wave.setVolume(-2000);
    synth.start();
    wave.start();
    desk.card->setMuted(CardLine::softwareSynth, true);
    desk.card->advance(512);
    desk.card->setMuted(CardLine::softwareSynth, false);
    desk.card->setMuted(CardLine::wave, true);
    desk.card->advance(512);
    EXPECT_EQ(desk.heard, Sound(512, {819, 819}) + Sound(512, quarter));
}

}  // namespace
}  // namespace lyrebrook
