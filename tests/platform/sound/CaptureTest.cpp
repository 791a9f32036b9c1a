#include <functional>
#include <thread>
#include <utility>

#include "SoundDesk.h"
#include "platform/base/RuntimeError.h"

namespace lyrebrook {
namespace {

Sound whole(const DirectSoundCaptureBuffer8& capture, Frames length) {
    Sound sound = silence(length);
    capture.ReadBuffer(0, toBytes(length), std::as_writable_bytes(std::span(sound)), 0);
    return sound;
}

class LoopedBack : public testing::TestWithParam<Frames> {};

TEST_P(LoopedBack, WhatPlayedLiesOnTheFrameWhereItPlayed) {
    const Frames latency = GetParam();
    SoundDesk desk(latency);
    const auto take = desk.capture(3000);
    const auto music = desk.buffer(ramp(2000));
    desk.card->advance(777);
    take->Start(0);
    desk.card->advance(300);
    music->SetCurrentPosition(toBytes(500));
    music->Play(0);
    desk.card->advance(1700 + latency);
    EXPECT_EQ(part(captured(*take), 0, 2000), silence(300) + part(ramp(2000), 500, 1500) + silence(200));
}

TEST_P(LoopedBack, AHoleInTheInputIsSilenceAndLaterSoundKeepsItsPlace) {
    SoundDesk desk(GetParam());
    const auto take = desk.capture(4000);
    const auto music = desk.buffer(ramp(2000));
    {
        const SoundTransaction together(SoundSystem::engine());
        music->Play(0);
        take->Start(0);
    }
    desk.card->advance(600);
    desk.card->loseInput(700);
    desk.card->advance(1400 + GetParam());
    EXPECT_EQ(part(captured(*take), 0, 2000), part(ramp(2000), 0, 600) + silence(700) + part(ramp(2000), 1300, 700));
}

TEST_P(LoopedBack, ATapeThatRunsOnceStopsWhenFullAndTellsItsSize) {
    SoundDesk desk(GetParam());
    const auto take = desk.capture(1000);
    const auto music = desk.buffer(ramp(3000));
    music->Play(0);
    take->Start(0);
    desk.card->advance(999 + GetParam());
    EXPECT_EQ(cursors(*take).lWrite, toBytes(999));
    desk.card->advance(2000);
    EXPECT_EQ(cursors(*take).lWrite, toBytes(1000));
    EXPECT_EQ(captured(*take), ramp(1000));
}

INSTANTIATE_TEST_SUITE_P(Latencies, LoopedBack, testing::Values(0, 1, 513, 5000));

TEST(Capture, StartBeginsAnewButNotWhileTheTapeRuns) {
    SoundDesk desk;
    const auto take = desk.capture(100);
    take->Start(0);
    desk.card->advance(60);
    take->Start(0);
    desk.card->advance(60);
    EXPECT_EQ(cursors(*take).lWrite, toBytes(100));
    take->Start(0);
    EXPECT_EQ(cursors(*take).lWrite, 0);
    desk.card->advance(10);
    EXPECT_EQ(cursors(*take).lWrite, toBytes(10));
}

TEST(Capture, TellsWhereAnotherBufferStoodOnItsFirstFrame) {
    SoundDesk desk;
    const auto take = desk.capture(1000);
    const auto music = desk.buffer(ramp(3000));
    music->Play(0);
    desk.card->advance(200);
    {
        const SoundTransaction together(SoundSystem::engine());
        take->startBeside(*music);
        desk.card->advance(100);
    }
    EXPECT_EQ(take->startedBeside(), std::nullopt) << "the card hasn't come to it";
    desk.card->advance(500);
    EXPECT_EQ(take->startedBeside(), toBytes(300));
    EXPECT_EQ(captured(*take), part(ramp(3000), 300, 500));
    take->Stop();
    EXPECT_EQ(take->startedBeside(), toBytes(300));
    take->Start(0);
    desk.card->advance(1);
    EXPECT_EQ(take->startedBeside(), std::nullopt) << "of an earlier start";
}

TEST(Capture, ALoopStartsOverAtItsEnd) {
    SoundDesk desk;
    const auto meter = desk.capture(1000);
    const auto music = desk.buffer(ramp(2500));
    music->Play(0);
    meter->Start(1);
    desk.card->advance(2300);
    EXPECT_EQ(cursors(*meter).lWrite, toBytes(300));
    EXPECT_EQ(whole(*meter, 1000), part(ramp(2500), 2000, 300) + part(ramp(2500), 1300, 700));
}

TEST(Capture, StopFreezesTheCursorAtOnceAndTwoCapturesDoNotDisturbEachOther) {
    SoundDesk desk;
    const auto take = desk.capture(1000);
    const auto meter = desk.capture(1000);
    take->Start(0);
    meter->Start(1);
    EXPECT_EQ(cursors(*take).lWrite, 0);
    desk.card->advance(100);
    take->Stop();
    EXPECT_EQ(cursors(*take).lWrite, toBytes(100));
    desk.card->advance(100);
    EXPECT_EQ(cursors(*take).lWrite, toBytes(100));
    EXPECT_EQ(cursors(*meter).lWrite, toBytes(200));
}

TEST(Capture, TheInputIsOpenOnlyWhileACaptureBufferExists) {
    SoundDesk desk;
    EXPECT_FALSE(desk.card->inputOpen());
    auto first = desk.capture(10);
    auto second = desk.capture(10);
    first.reset();
    EXPECT_TRUE(desk.card->inputOpen());
    second.reset();
    EXPECT_FALSE(desk.card->inputOpen());
}

TEST(Capture, WhatCannotBeMetIsAnError) {
    SoundDesk desk;
    const auto take = desk.capture(10);
    std::array<std::byte, 40> bytes{};
    for (const auto& [start, size] : {std::pair{-1, 4}, {36, 8}, {0, -4}, {INT32_MAX, INT32_MAX}}) {
        EXPECT_THROW(take->ReadBuffer(start, size, bytes, 0), RuntimeError) << start << ' ' << size;
    }
    EXPECT_THROW(take->ReadBuffer(0, 40, std::span(bytes).first(39), 0), RuntimeError);
    EXPECT_NO_THROW(take->ReadBuffer(37, 3, bytes, 0));
    EXPECT_THROW(desk.dsc.CreateCaptureBuffer({0, -4, trackFormat()}), RuntimeError);
    EXPECT_THROW(desk.ds.CreateSoundBuffer({0, 400, {}}), RuntimeError);
}

/// A card whose input is played by hand.
class ScriptedCard final : public SoundCard {
  public:
    void start(SoundCardClient& client) override { client_ = &client; }
    void stop() override {
        if (thread_.joinable()) thread_.join();
        client_ = nullptr;
    }
    void openInput() override {}
    void closeInput() override {}
    std::int32_t outputCount() const override { return 1; }

    void play(std::size_t frames) {
        std::vector<float> wave(2 * frames);
        std::vector<float> synth(2 * frames);
        client_->mixFrames({wave, synth});
    }
    void deliver(Frames at, const Sound& frames) { client_->framesCaptured(at, frames); }
    void sound(Frames upTo) { client_->framesSounded(upTo); }

    /// Happens on the card's thread as soon as somebody asks whether to wait for the card.
    void willDo(std::function<void()> act) { act_ = std::move(act); }
    bool runsByItself() const override {
        if (act_) thread_ = std::jthread(std::exchange(act_, {}));
        return true;
    }

  private:
    mutable std::function<void()> act_;
    mutable std::jthread thread_;
    SoundCardClient* client_ = nullptr;
};

TEST(Capture, EveryDeliveryGoesWhereItsIndexSays) {
    ScriptedCard card;
    const auto engine = std::make_shared<SoundEngine>(card);
    DirectSoundCaptureBuffer8 take(engine, 100);
    DirectSoundCaptureBuffer8 loop(engine, 10);
    card.play(1000);
    take.Start(0);
    loop.Start(1);
    card.play(1);
    card.deliver(980, ramp(25));       // begins 20 frames before the start
    card.deliver(1010, ramp(5, 200));  // after a hole of 5
    card.deliver(1006, ramp(2, 300));  // into the hole, late
    EXPECT_EQ(captured(take), ramp(5, 21) + silence(1) + ramp(2, 300) + silence(2) + ramp(5, 200));
    EXPECT_EQ(cursors(loop).lWrite, toBytes(5));
    card.deliver(1090, ramp(50));
    EXPECT_EQ(part(captured(take), 80, 20), silence(10) + ramp(10));
    EXPECT_EQ(cursors(take).lWrite, toBytes(100));
    card.deliver(1145, Sound(1, {700, 700}));  // a lap later, after a hole
    EXPECT_EQ(part(whole(loop, 10), 0, 6), silence(5) + Sound(1, {700, 700}));
}

TEST(Capture, StopWaitsForWhatHasSoundedAndIsOnItsWay) {
    ScriptedCard card;
    const auto engine = std::make_shared<SoundEngine>(card);
    DirectSoundCaptureBuffer8 take(engine, 5000);
    take.Start(0);
    card.play(4000);
    card.deliver(0, ramp(100));
    card.sound(1000);
    card.willDo([&card] {
        card.deliver(100, ramp(500, 101));
        card.deliver(600, ramp(1400, 601));
    });
    take.Stop();
    EXPECT_EQ(part(captured(take), 0, 1000), ramp(1000));
}

}  // namespace
}  // namespace lyrebrook
