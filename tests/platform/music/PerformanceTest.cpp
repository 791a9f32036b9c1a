#include <QCoreApplication>

#include "MusicDesk.h"
#include "platform/base/RuntimeError.h"

namespace lyrebrook {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;

const std::string twoKnocks = midiFile({knock(0) + knock(100) + endOfTrack});
const std::string cymbal = midiFile({bytes({0, 0x99, 49, 60}) + endOfTrack});
constexpr double closely = 0.006;

Frames quietFramesAtTheEndOf(const Sound& sound) {
    const auto isAudible = [](const StereoFrame& frame) {
        return std::abs(frame.left) > 1 || std::abs(frame.right) > 1;
    };
    return std::find_if(sound.rbegin(), sound.rend(), isAudible) - sound.rbegin();
}

class Performance : public testing::Test {
  protected:
    MusicDesk desk;
    DirectMusicPerformance8& performance = *desk.performance;
};

struct TempoCase {
    float first, later;  // the factor, and the one from half a second on
    double secondKnock;
};

TEST_F(Performance, TempoActsAtOnceAndStaysForTheNextSegment) {
    const auto segment = desk.segment(twoKnocks);
    for (const TempoCase each :
         {TempoCase{1, 1, 1}, {2, 2, 0.5}, {0.5, 0.5, 2}, {1, 2, 0.75}, {1, 0.5, 1.5}, {3, 0, 0.333}}) {
        desk.heard.clear();
        performance.SetMasterTempo(each.first);
        performance.PlaySegmentEx(*segment);
        desk.crank(0.5);
        performance.SetMasterTempo(each.later);
        desk.crank(2);
        EXPECT_THAT(beginnings(desk.heard), Pointwise(DoubleNear(closely), {0.0, each.secondKnock})) << each.later;
    }
}

TEST_F(Performance, TempoZeroHoldsTheMusicUntilItIsLetGo) {
    const auto segment = desk.segment(twoKnocks);
    performance.PlaySegmentEx(*segment);
    desk.crank(0.5);
    performance.SetMasterTempo(0);
    desk.crank(7);
    EXPECT_EQ(desk.ends, 0);
    performance.SetMasterTempo(1);
    desk.crank(2);
    EXPECT_THAT(beginnings(desk.heard), Pointwise(DoubleNear(closely), {0.0, 8.0}));
    EXPECT_EQ(desk.ends, 1);
}

TEST(PerformanceEnd, ComesOnceAfterTheRingOutHasSoundedAndWasCaptured) {
    constexpr Frames latency = 5000;
    MusicDesk desk(latency);
    const auto capture = desk.capture(20 * framesPerSecond);
    capture->Start(0);
    const auto segment = desk.segment(cymbal);
    desk.onEnd = [&] {
        const Sound sound = captured(*capture);
        EXPECT_GE(std::ssize(sound), std::ssize(desk.heard) - latency - 441);
        EXPECT_THAT(quietFramesAtTheEndOf(sound), testing::AllOf(testing::Ge(2000), testing::Le(12000)));
    };
    const Sound whole = desk.playToTheEnd(*segment);
    EXPECT_GT(std::ssize(whole), framesPerSecond);
    desk.crank(3);
    EXPECT_EQ(desk.ends, 1);
    EXPECT_EQ(part(desk.heard, std::ssize(whole), 2 * framesPerSecond), silence(2 * framesPerSecond));
}

TEST_F(Performance, AStoppedSegmentIsSilentAtOnceAndTellsNoEnd) {
    const auto segment = desk.segment(cymbal);
    performance.PlaySegmentEx(*segment);
    desk.crank(0.2);
    performance.StopEx(*segment);
    desk.heard.clear();
    desk.crank(6);
    EXPECT_THAT(desk.heard, testing::Each(StereoFrame{}));

    performance.PlaySegmentEx(*segment);
    desk.card->advance(8 * framesPerSecond);
    performance.StopEx(*segment);
    desk.crank(1);
    EXPECT_EQ(desk.ends, 0);
}

TEST_F(Performance, PlayedAgainItSoundsTheSameToTheLastBit) {
    const auto segment = desk.segment(twoKnocks);
    const Sound first = desk.playToTheEnd(*segment);
    performance.PlaySegmentEx(*segment);
    desk.crank(0.3);
    performance.StopEx(*segment);
    EXPECT_EQ(desk.playToTheEnd(*segment), first);
}

TEST_F(Performance, RepeatsSoManyTimesMore) {
    const auto segment = desk.segment(midiFile({knock(0) + bytes({100}) + endOfTrack.substr(1)}));
    segment->SetRepeats(2);
    EXPECT_THAT(beginnings(desk.playToTheEnd(*segment)), Pointwise(DoubleNear(closely), {0.0, 1.0, 2.0}));
    segment->SetRepeats(-1);
    performance.PlaySegmentEx(*segment);
    desk.crank(20);
    EXPECT_EQ(desk.ends, 1);
}

TEST_F(Performance, TheHandlerMayPlayStopAndUnloadItself) {
    auto segment = desk.segment(twoKnocks);
    desk.onEnd = [&] {
        performance.StopEx(*segment);
        if (desk.ends == 1) return performance.PlaySegmentEx(*segment);
        segment.reset();
        desk.performance.reset();
    };
    performance.PlaySegmentEx(*segment);
    desk.crank(8);
    EXPECT_EQ(desk.ends, 2);
}

TEST_F(Performance, TheEventLoopBringsTheEndWhenItTurns) {
    int argumentCount = 0;
    QCoreApplication application(argumentCount, nullptr);
    const auto segment = desk.segment(cymbal);
    performance.PlaySegmentEx(*segment);
    desk.card->advance(8 * framesPerSecond);
    EXPECT_EQ(desk.ends, 0);
    while (desk.ends == 0) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(desk.ends, 1);
}

// The trap that is linked to this program ends it if the card's thread takes memory or a lock.
TEST_F(Performance, AWildSongIsRenderedWithoutMemoryOrLocks) {
    std::string track = bytes({0, 0xF0, 10, 0x41, 16, 0x42, 0x12, 0x40, 0, 0x7F, 0, 0x41, 0xF7});
    for (int round = 0; round < 40; ++round) {
        for (int channel = 0; channel < 16; ++channel) {
            track += bytes({0, 0xB0 | channel, 0, round, 0, 0xC0 | channel, 3 * round, 0, 0xB0 | channel, 93, 90});
            for (int key = 36; key < 96; key += 5) track += bytes({0, 0x90 | channel, key, 127});
            track += bytes({0, 0xE0 | channel, 0, 2 * round, 0, 0xD0 | channel, 99, 0, 0xA0 | channel, 60, 70});
        }
        track += bytes({20, 0xF0, 5, 0x7E, 0x7F, 9, 1, 0xF7});
    }
    const auto segment = desk.segment(midiFile({track + endOfTrack}));
    const Sound sound = desk.playToTheEnd(*segment);
    EXPECT_EQ(desk.ends, 1);
    EXPECT_GT(std::ssize(sound), 8 * framesPerSecond);
}

TEST(PerformanceFailure, WithoutASoundFontTheTextNamesThePackage) {
    DirectMusicPerformance8 performance({"/nowhere/default.sf2"});
    try {
        performance.InitAudio(0, DMUS_AUDIOF_ALL, DMUS_APATH_DYNAMIC_STEREO, 128);
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_THAT(error.description(), testing::HasSubstr("fluid-soundfont-gm"));
    }
}

TEST(PerformanceFailure, WithoutACardNothingIsMade) {
    DirectX8 dx;
    EXPECT_THROW(dx.DirectSoundCreate(""), RuntimeError);
    EXPECT_THROW(dx.DirectSoundCaptureCreate(""), RuntimeError);
    EXPECT_THROW(dx.DirectMusicPerformanceCreate()->InitAudio(0, 63, 8, 128), RuntimeError);
}

}  // namespace
}  // namespace lyrebrook
