#include "platform/sound/effects/Reverb.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <functional>
#include <numbers>
#include <numeric>
#include <random>
#include <utility>
#include <vector>

#include "platform/base/RuntimeError.h"
#include "platform/sound/effects/DirectSoundFXWavesReverb8.h"

namespace lyrebrook {
namespace {

using Channel = std::vector<double>;
struct Sound {
    Channel left, right;
};

/// A reverb as a buffer carries it, and its handle; sound goes through in blocks as the engine hands them on.
struct Room {
    std::shared_ptr<WavesReverbSettings> settings = std::make_shared<WavesReverbSettings>();
    DirectSoundFXWavesReverb8 handle{settings};
    Reverb reverb{settings};

    explicit Room(const DSFXWAVESREVERB& record) { handle.SetAllParameters(record); }

    Sound answer(const Sound& in, std::size_t blockFrames = 512) {
        Sound out = in;
        for (std::size_t at = 0; at < in.left.size(); at += blockFrames) {
            std::vector<float> block;
            for (std::size_t t = at; t < std::min(at + blockFrames, in.left.size()); ++t) {
                block.insert(block.end(), {static_cast<float>(in.left[t]), static_cast<float>(in.right[t])});
            }
            reverb.process(block);
            for (std::size_t t = 0; t < block.size() / 2; ++t) {
                out.left[at + t] = block[2 * t];
                out.right[at + t] = block[2 * t + 1];
            }
        }
        return out;
    }
};

Channel make(double seconds, const std::function<double(std::size_t)>& sample) {
    Channel channel(static_cast<std::size_t>(seconds * framesPerSecond));
    for (std::size_t t = 0; t < channel.size(); ++t) channel[t] = static_cast<float>(sample(t));
    return channel;
}
Channel silence(double seconds) {
    return make(seconds, [](std::size_t) { return 0.0; });
}
Channel click(double seconds) {
    return make(seconds, [](std::size_t t) { return t == 0 ? 1.0 : 0.0; });
}
Channel noise(double seconds) {
    return make(seconds, [random = std::mt19937(1), spread = std::uniform_real_distribution(-0.5, 0.5)](
                             std::size_t) mutable { return spread(random); });
}
Channel sine(double seconds, double hertz) {
    const double step = 2 * std::numbers::pi * hertz / framesPerSecond;
    return make(seconds, [step](std::size_t t) { return 0.5 * std::sin(step * static_cast<double>(t)); });
}
Sound both(const Channel& channel) {
    return {channel, channel};
}

double energy(const Channel& channel) {
    return std::inner_product(channel.begin(), channel.end(), channel.begin(), 0.0);
}
double decibels(double ratio) {
    return 10 * std::log10(ratio);
}

/// What the reverb added to its sound.
Channel added(const Channel& out, const Channel& in) {
    Channel wet(out.size());
    std::transform(out.begin(), out.end(), in.begin(), wet.begin(), std::minus<>());
    return wet;
}

/// An octave around `centre`, by four resonances one after the other.
Channel octave(Channel sound, double centre) {
    const double angle = 2 * std::numbers::pi * centre / framesPerSecond;
    const double alpha = std::sin(angle) * 0.5;
    for (int stage = 0; stage < 4; ++stage) {
        double x1 = 0, x2 = 0, y1 = 0, y2 = 0;
        for (double& x : sound) {
            const double y = (alpha * (x - x2) + 2 * std::cos(angle) * y1 - (1 - alpha) * y2) / (1 + alpha);
            x2 = std::exchange(x1, x);
            y2 = std::exchange(y1, y);
            x = y;
        }
    }
    return sound;
}

/// Seconds to -60 dB by backward integration, from the 30 dB below -5.
double decaySeconds(const Channel& sound) {
    Channel left(sound.size());
    std::transform_inclusive_scan(sound.rbegin(), sound.rend(), left.rbegin(), std::plus<>(),
                                  [](double sample) { return sample * sample; });
    const auto fallenBy = [&left](double fall) {
        return std::ranges::find_if(left, [&](double rest) { return decibels(rest / left[0]) < -fall; });
    };
    return 2.0 * static_cast<double>(fallenBy(35) - fallenBy(5)) / framesPerSecond;
}

TEST(Reverb, TheTailTakesTheTimeThatWasAskedForAndItsRatioAtTheTop) {
    struct Case {
        float milliseconds, ratio;
        double centre, seconds, tolerance;
    };
    const Case cases[] = {
        {3000, 0.1F, 500, 3.0, 0.1},    {3000, 0.1F, 1000, 3.0, 0.1},  {3000, 0.1F, 2000, 3.0, 0.1},
        {3000, 0.1F, 12500, 0.3, 0.35}, {3000, 0.9F, 12500, 2.7, 0.1}, {1500, 0.3F, 1000, 1.5, 0.1},
        {1500, 0.3F, 12500, 0.45, 0.2}, {500, 0.5F, 1000, 0.5, 0.15},  {500, 0.5F, 12500, 0.25, 0.2},
    };
    for (const Case& c : cases) {
        const Sound in = both(click(2.5 * c.seconds));
        const Sound out = Room({0, 0, c.milliseconds, c.ratio}).answer(in);
        for (const Channel& wet : {added(out.left, in.left), added(out.right, in.right)}) {
            EXPECT_NEAR(decaySeconds(octave(wet, c.centre)), c.seconds, c.seconds * c.tolerance)
                << c.milliseconds << " ms, ratio " << c.ratio << ", at " << c.centre << " Hz";
        }
    }
}

TEST(Reverb, AFullMixIsAboutAsLoudAsTheSoundAndMinus50IsInaudible) {
    const Channel signals[] = {click(4), noise(6), sine(6, 110), sine(6, 440), sine(6, 1329), sine(6, 5000)};
    for (const Channel& signal : signals) {
        const Sound in = both(signal);
        const double dry = energy(in.left);
        const double full = energy(added(Room({0, 0, 3000, 0.1F}).answer(in).left, in.left));
        const double faint = energy(added(Room({0, -50, 3000, 0.1F}).answer(in).left, in.left));
        EXPECT_LT(decibels(faint / dry), -40);
        EXPECT_NEAR(decibels(full / faint), 50, 0.2);
    }
    const Channel voice = octave(noise(6), 500);
    const double wet = energy(added(Room({0, 0, 3000, 0.1F}).answer(both(voice)).left, voice));
    EXPECT_NEAR(decibels(wet / energy(voice)), -2, 3);
}

TEST(Reverb, InGainTakesAllDownAlike) {
    const Sound in = both(noise(1));
    const Sound full = Room({0, -6, 1000, 0.5F}).answer(in);
    const Sound half = Room({-6.0206F, -6, 1000, 0.5F}).answer(in);
    for (std::size_t t = 0; t < in.left.size(); ++t) {
        ASSERT_NEAR(half.left[t], full.left[t] / 2, 1e-5) << t;
        ASSERT_NEAR(half.right[t], full.right[t] / 2, 1e-5) << t;
    }
}

TEST(Reverb, OneSideComesBackFromBothAndTheirSumLosesNothing) {
    const Sound in{click(5), silence(5)};
    const Sound out = Room({0, 0, 3000, 0.1F}).answer(in);
    const Channel left = added(out.left, in.left);
    Channel sum(left);
    std::transform(left.begin(), left.end(), out.right.begin(), sum.begin(), std::plus<>());
    EXPECT_NEAR(decibels(energy(left) / energy(out.right)), 0, 1);
    EXPECT_NEAR(decibels(energy(sum) / (energy(left) + energy(out.right))), 0, 1);
}

TEST(Reverb, BlocksOfAnySizeSoundTheSame) {
    const Sound in = both(noise(1));
    const Sound whole = Room({0, 0, 3000, 0.1F}).answer(in);
    const Sound pieces = Room({0, 0, 3000, 0.1F}).answer(in, 101);
    for (std::size_t t = 0; t < in.left.size(); ++t) ASSERT_NEAR(pieces.left[t], whole.left[t], 1e-4) << t;
}

TEST(Reverb, ASliderMovedWhileItSoundsMakesNoClick) {
    const Sound in = both(sine(0.1, 100));
    Room room({0, 0, 3000, 0.1F});
    Channel out;
    for (const DSFXWAVESREVERB& record : {DSFXWAVESREVERB{0, 0, 3000, 0.1F},
                                          {0, 0, 3000, 0.1F},
                                          {0, -50, 3000, 0.1F},
                                          {0, 0, 3000, 0.1F},
                                          {0, 0, 100, 0.9F},
                                          {0, 0, 3000, 0.1F},
                                          {-96, 0, 3000, 0.1F}}) {
        room.handle.SetAllParameters(record);
        const Channel part = room.answer(in).left;
        out.insert(out.end(), part.begin(), part.end());
    }
    double bend = 0;
    for (std::size_t t = 2; t < out.size(); ++t) bend = std::max(bend, std::abs(out[t] - 2 * out[t - 1] + out[t - 2]));
    EXPECT_LT(bend, 0.02);
}

TEST(Reverb, TheTailEndsInSilenceWithoutAClick) {
    for (const DSFXWAVESREVERB& record : {DSFXWAVESREVERB{0, 0, 3000, 0.1F},
                                          {0, -96, 3000, 0.001F},
                                          {0, 0, 0.001F, 0.001F},
                                          {-60, -96, 15.5F, 0.999F}}) {
        Room room(record);
        room.answer(both(noise(1)));
        const Frames tail = room.reverb.tailFrames();
        const Channel out = room.answer(both(silence(static_cast<double>(tail) / framesPerSecond))).right;
        EXPECT_TRUE(room.reverb.silent());
        EXPECT_EQ(room.reverb.tailFrames(), 0);
        const auto last = std::find_if(out.rbegin(), out.rend(), [](double sample) { return sample != 0; });
        EXPECT_TRUE(last == out.rend() || std::abs(*last) < 1e-5);
        EXPECT_EQ(out.back(), 0);
    }
}

TEST(Reverb, NeverWorksWithSubnormalsThatWouldSlowItDown) {
    // Clicks are hardest: between them the filters run out while the delays still hold something.
    const Sound in{make(4, [](std::size_t t) { return t % 6656 == 0 ? 1e-4 : 0.0; }), silence(4)};
    for (const float milliseconds : {0.001F, 22.0F, 40.0F, 3000.0F}) {
        Room room({0, -96, milliseconds, 0.5F});
        room.answer(both(silence(0.1)));
        std::feclearexcept(FE_UNDERFLOW);
        room.answer(in);
        EXPECT_FALSE(std::fetestexcept(FE_UNDERFLOW)) << milliseconds << " ms";
    }
}

TEST(Reverb, ForgetsItsSoundWhenReset) {
    Room room({0, 0, 3000, 0.1F});
    room.answer(both(noise(1)));
    room.reverb.reset();
    EXPECT_EQ(energy(room.answer(both(silence(1))).left), 0);
}

TEST(WavesReverbSettings, AValueOutsideItsRangeIsRefusedAndNothingChanges) {
    const DSFXWAVESREVERB good{-1, -2, 2999, 0.5F};
    Room room(good);
    for (const DSFXWAVESREVERB& bad : {DSFXWAVESREVERB{0.1F, 0, 1, 0.1F},
                                       {0, -96.1F, 1, 0.1F},
                                       {0, 0, 0, 0.1F},
                                       {0, 0, 3001, 0.1F},
                                       {0, 0, 1, 1},
                                       {0, std::nanf(""), 1, 0.1F}}) {
        EXPECT_THROW(room.handle.SetAllParameters(bad), RuntimeError);
    }
    EXPECT_EQ(room.handle.GetAllParameters(), good);
}

}  // namespace
}  // namespace lyrebrook
