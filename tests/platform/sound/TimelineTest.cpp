#include <array>
#include <cstdlib>

#include "SoundDesk.h"
#include "platform/base/RuntimeError.h"

namespace lyrebrook {
namespace {

TEST(Timeline, OrdersReadBackBeforeTheCardHasSeenThem) {
    SoundDesk desk;
    const auto buffer = desk.buffer(ramp(1000));
    for (const auto& [asked, taken] : {std::pair{-8, 0}, {99999, 4000}, {403, 400}}) {
        buffer->SetCurrentPosition(asked);
        EXPECT_EQ(cursors(*buffer).lPlay, taken);
    }
    buffer->Play(0);
    EXPECT_EQ(buffer->GetStatus(), 1);
    desk.card->advance(50);
    EXPECT_EQ(cursors(*buffer).lPlay, toBytes(150));
    buffer->Stop();
    EXPECT_EQ(buffer->GetStatus(), 0);
    desk.card->advance(50);
    EXPECT_EQ(cursors(*buffer).lPlay, toBytes(150));
    EXPECT_EQ(desk.heard, part(ramp(1000), 100, 50) + silence(50));
}

TEST(Timeline, AtTheLastFrameABufferStopsAndStandsAtZero) {
    SoundDesk desk;
    const auto buffer = desk.buffer(ramp(1000));
    buffer->Play(0);
    desk.card->advance(999);
    EXPECT_EQ(buffer->GetStatus(), 1);
    desk.card->advance(1);
    EXPECT_EQ(buffer->GetStatus(), 0);
    EXPECT_EQ(cursors(*buffer).lPlay, 0);
    desk.card->advance(500);
    EXPECT_EQ(desk.heard, ramp(1000) + silence(500));
}

TEST(Timeline, ATransactionStartsAllOnOneFrameHoweverLateItEnds) {
    SoundDesk desk;
    const auto music = desk.buffer(ramp(1000));
    const auto voice = desk.buffer(ramp(1000, 100));
    const auto take = desk.capture(1000);
    {
        const SoundTransaction together(SoundSystem::engine());
        music->Play(0);
        desk.card->advance(700);
        voice->SetCurrentPosition(toBytes(50));
        voice->Play(0);
        desk.card->advance(30);
        take->Start(0);
    }
    desk.card->advance(300);
    EXPECT_EQ(part(desk.heard, 0, 730), silence(730));
    Sound both = ramp(300);
    for (std::size_t i = 0; i < both.size(); ++i) {
        both[i].left = static_cast<std::int16_t>(both[i].left + 150 + static_cast<int>(i));
        both[i].right = static_cast<std::int16_t>(-both[i].left);
    }
    EXPECT_EQ(captured(*take), both);
}

TEST(Timeline, LoudSumsAreClippedNotWrapped) {
    SoundDesk desk;
    const auto one = desk.buffer(Sound(10, {30000, -30000}));
    const auto other = desk.buffer(Sound(10, {30000, -30000}));
    one->Play(0);
    other->Play(0);
    desk.card->advance(10);
    EXPECT_EQ(desk.heard, Sound(10, {32767, -32768}));
}

TEST(Timeline, VolumeAndPanTakeHundredthsOfADecibelOff) {
    struct Case {
        std::int32_t volume;
        std::int32_t pan;
        StereoFrame heard;
    };
    for (const Case& at : {Case{0, 0, {10000, 10000}}, Case{-2000, 0, {1000, 1000}}, Case{-2000, -2000, {1000, 100}},
                           Case{0, 4000, {100, 10000}}, Case{-10000, 0, {0, 0}}, Case{0, -10000, {10000, 0}}}) {
        SoundDesk desk;
        const auto buffer = desk.buffer(Sound(10, {10000, 10000}));
        buffer->Play(0);
        buffer->SetVolume(at.volume);
        buffer->SetPan(at.pan);
        desk.card->advance(10);
        EXPECT_EQ(desk.heard, Sound(10, at.heard)) << at.volume << ' ' << at.pan;
    }
}

TEST(Timeline, AVolumeChangeGlidesWithoutAClick) {
    SoundDesk desk;
    const auto buffer = desk.buffer(Sound(2000, {16000, 16000}));
    buffer->Play(0);
    desk.card->advance(512);
    buffer->SetVolume(-10000);
    desk.card->advance(1024);
    for (std::size_t i = 1; i < desk.heard.size(); ++i) {
        ASSERT_LE(std::abs(desk.heard[i].left - desk.heard[i - 1].left), 16000 / 512 + 1) << i;
    }
    EXPECT_EQ(part(desk.heard, 1024, 512), silence(512));
}

TEST(Timeline, AWriteWhileItPlaysIsHeardFromTheNextFrameOn) {
    SoundDesk desk;
    const auto buffer = desk.buffer(ramp(1000));
    buffer->Play(0);
    desk.card->advance(100);
    const Sound other = ramp(1000, 7000);
    buffer->WriteBuffer(toBytes(50), toBytes(400), std::as_bytes(std::span(other)), 0);
    desk.card->advance(900);
    EXPECT_EQ(desk.heard, part(ramp(1000), 0, 100) + part(other, 50, 350) + part(ramp(1000), 450, 550));
    EXPECT_EQ(content(*buffer, 1000), part(ramp(1000), 0, 50) + part(other, 0, 400) + part(ramp(1000), 450, 550));
}

TEST(Timeline, SoundObjectsMayGoWhileTheySoundAndOutliveTheirCard) {
    auto desk = std::make_unique<SoundDesk>();
    auto gone = desk->buffer(ramp(1000));
    auto kept = desk->buffer(ramp(1000));
    const auto take = desk->capture(100);
    gone->Play(0);
    kept->Play(0);
    desk->card->advance(100);
    gone.reset();
    kept->Stop();
    desk->card->advance(100);
    EXPECT_EQ(part(desk->heard, 100, 100), silence(100));
    desk.reset();
    kept->Play(0);
    take->Start(0);
    EXPECT_EQ(kept->GetStatus(), 1);
    EXPECT_EQ(cursors(*take).lWrite, 0);
    EXPECT_THROW(SoundSystem::engine(), RuntimeError);
}

/// Repeats what it is given 100 frames later, at half the level, for as long as it is asked to.
class Echo final : public SoundEffect {
  public:
    void process(std::span<float> samples) noexcept override {
        for (float& sample : samples) sample += 0.5F * std::exchange(line_[next_++ % line_.size()], sample);
    }
    Frames tailFrames() const noexcept override { return 100; }

  private:
    std::array<float, 200> line_{};
    std::size_t next_ = 0;
};

TEST(Timeline, AnEffectIsRefusedWhilePlayingAndRingsOnAfterTheEnd) {
    SoundDesk desk;
    const auto buffer = desk.buffer(Sound(50, {1000, 2000}));
    buffer->setEffect(std::make_shared<Echo>());
    buffer->Play(0);
    EXPECT_THROW(buffer->setEffect(nullptr), RuntimeError);
    desk.card->advance(50);
    EXPECT_EQ(buffer->GetStatus(), 0);
    desk.card->advance(200);
    EXPECT_EQ(desk.heard, Sound(50, {1000, 2000}) + silence(50) + Sound(50, {500, 1000}) + silence(100));
}

TEST(Timeline, TheReverbIsGivenToAStoppedBufferAndStaysWhenACallIsRefused) {
    SoundDesk desk;
    const auto buffer = desk.buffer(Sound(400, {8000, 8000}));
    std::array effects{DSEFFECTDESC{.lFlags = 0, .guidDSFXClass = "GUID_DSFX_WAVES_REVERB"}};
    std::array results{0};
    const auto reverb = [&] {
        return buffer->GetObjectInPath("GUID_DSFX_WAVES_REVERB", 0, "IID_DirectSoundFXWavesReverb");
    };
    EXPECT_THROW(reverb(), RuntimeError);
    buffer->SetFX(1, effects, results);
    reverb()->SetAllParameters({.fReverbMix = -10, .fReverbTime = 3000, .fHighFreqRTRatio = 0.1F});
    buffer->Play(0);
    EXPECT_THROW(buffer->SetFX(1, effects, results), RuntimeError);
    EXPECT_EQ(reverb()->GetAllParameters().fReverbMix, -10);
    desk.card->advance(framesPerSecond);
    EXPECT_NE(part(desk.heard, 20000, 4000), silence(4000));
    effects.front().guidDSFXClass = "GUID_DSFX_STANDARD_ECHO";
    EXPECT_THROW(buffer->SetFX(1, effects, results), RuntimeError);
    EXPECT_EQ(results.front(), DSFXR_UNKNOWN);
    buffer->SetFX(0, {}, {});
    EXPECT_THROW(reverb(), RuntimeError);
}

}  // namespace
}  // namespace lyrebrook
