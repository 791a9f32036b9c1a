#include "platform/sound/effects/ReverbNetwork.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "platform/sound/SoundFormat.h"
#include "platform/sound/wideLoops.h"

namespace lyrebrook {
namespace {

// 30 to 85 ms, primes, so that the rounds of different lines fall together as late as possible.
constexpr std::array<std::size_t, reverbLines> lineDelays{1327, 1601, 1847, 2137, 2473, 2801, 3251, 3769};
constexpr std::size_t longestDelay = lineDelays.back();
constexpr double meanDelay =
    static_cast<double>(std::accumulate(lineDelays.begin(), lineDelays.end(), std::size_t{0})) / reverbLines;

// Different left and right, so that a voice in the middle comes back from all around.
constexpr float diffusion = 0.62F;

// Quiet for two rounds of the longest line is quiet everywhere.
constexpr std::size_t quietForSleep = 2 * longestDelay;
constexpr float quietLevel = 1e-5F;

bool isLoud(const SliceChannel& channel, std::size_t frames) noexcept {
    int loud = 0;
    for (std::size_t t = 0; t < frames; ++t) loud |= static_cast<int>(std::fabs(channel[t]) > quietLevel);
    return loud != 0;
}

bool isLoud(const StereoSlice& slice) noexcept {
    return isLoud(slice.left, slice.frames) || isLoud(slice.right, slice.frames);
}

void diffusePiece(float* __restrict stored, float* __restrict sound, std::size_t frames) noexcept {
    for (std::size_t t = 0; t < frames; ++t) {
        const float delayed = stored[t];
        const float kept = withoutTraces(sound[t] + diffusion * delayed);
        sound[t] = delayed - diffusion * kept;
        stored[t] = kept;
    }
}

void diffuseThrough(DelayLine& delay, SliceChannel& channel, std::size_t frames) noexcept {
    delay.pass(frames, [&channel](float* stored, std::size_t at, std::size_t count) {
        diffusePiece(stored, channel.data() + at, count);
    });
}

struct LineFrame {
    float at[reverbLines];
};

// The Hadamard matrix, without the factor 1 / sqrt(8) that the absorption holds.
LineFrame mixed(const LineFrame& in) noexcept {
    const auto& x = in.at;
    const float a = x[0] + x[1], b = x[0] - x[1], c = x[2] + x[3], d = x[2] - x[3];
    const float e = x[4] + x[5], f = x[4] - x[5], g = x[6] + x[7], h = x[6] - x[7];
    const float ac = a + c, bd = b + d, eg = e + g, fh = f + h;
    const float ca = a - c, db = b - d, ge = e - g, hf = f - h;
    return {{ac + eg, bd + fh, ca + ge, db + hf, ac - eg, bd - fh, ca - ge, db - hf}};
}

}  // namespace

ReverbNetwork::ReverbNetwork()
    : diffuseLeft_{DelayLine(142), DelayLine(107), DelayLine(379), DelayLine(277)},
      diffuseRight_{DelayLine(151), DelayLine(113), DelayLine(389), DelayLine(263)},
      lines_{DelayLine(lineDelays[0]), DelayLine(lineDelays[1]), DelayLine(lineDelays[2]), DelayLine(lineDelays[3]),
             DelayLine(lineDelays[4]), DelayLine(lineDelays[5]), DelayLine(lineDelays[6]), DelayLine(lineDelays[7])},
      absorption_(lineDelays),
      rotors_{Rotor(0.23F), Rotor(-0.31F), Rotor(0.37F), Rotor(-0.29F)} {}

void ReverbNetwork::setDecay(float milliseconds, float highRatio, Change change) noexcept {
    absorption_.setDecay(milliseconds, highRatio, change);
}

float ReverbNetwork::unityLevel(float milliseconds) noexcept {
    // White noise comes out of the lines with the power lost / (1 - lost) per round; a quieter first round stays quiet.
    constexpr double crest = 0.9;
    const double kept = std::pow(10.0, -6.0 * meanDelay / (milliseconds * 0.001 * framesPerSecond));
    return static_cast<float>(crest * std::sqrt(1.0 - kept));
}

std::size_t ReverbNetwork::longestRing(float milliseconds) noexcept {
    // A resonance can hold full scale 30 dB above itself; from there down to the quiet level.
    constexpr double decibels = 130.0;
    const double decay = decibels / 60.0 * milliseconds * 0.001 * framesPerSecond;
    return static_cast<std::size_t>(decay) + 2 * quietForSleep;
}

LYREBROOK_WIDE_LOOPS void ReverbNetwork::process(StereoSlice& slice) noexcept {
    const bool loudInput = isLoud(slice);
    if (asleep_ && !loudInput) {
        slice.left.fill(0.0F);
        slice.right.fill(0.0F);
        return;
    }
    asleep_ = false;
    diffuse(slice);
    alignas(16) LineSlices lines;
    for (std::size_t i = 0; i < reverbLines; ++i) lines_[i].peek(lines[i].data(), slice.frames);
    absorption_.process(lines, slice.frames);
    for (std::size_t i = 0; i < rotors_.size(); ++i) rotors_[i].turn(lines[i], lines[i + rotors_.size()], slice.frames);
    mix(lines, slice);
    for (std::size_t i = 0; i < reverbLines; ++i) {
        lines_[i].pass(slice.frames, [from = lines[i].data()](float* stored, std::size_t at, std::size_t count) {
            std::copy_n(from + at, count, stored);
        });
    }
    watch(loudInput || isLoud(slice), slice.frames);
}

LYREBROOK_WIDE_LOOPS void ReverbNetwork::diffuse(StereoSlice& slice) noexcept {
    for (DelayLine& delay : diffuseLeft_) diffuseThrough(delay, slice.left, slice.frames);
    for (DelayLine& delay : diffuseRight_) diffuseThrough(delay, slice.right, slice.frames);
}

LYREBROOK_WIDE_LOOPS void ReverbNetwork::mix(LineSlices& lines, StereoSlice& slice) noexcept {
    float* __restrict left = slice.left.data();
    float* __restrict right = slice.right.data();
    for (std::size_t t = 0; t < slice.frames; ++t) {
        const LineFrame x{{lines[0][t], lines[1][t], lines[2][t], lines[3][t],  //
                           lines[4][t], lines[5][t], lines[6][t], lines[7][t]}};
        const LineFrame y = mixed(x);
        const float inLeft = left[t];
        const float inRight = right[t];
        // Two patterns of signs at right angles to each other, and none of them a row of the mixing: the sides differ,
        // and their sum to one channel loses nothing.
        left[t] = withoutTraces(x.at[0] + x.at[1] - x.at[2] + x.at[3] - x.at[4] - x.at[5] + x.at[6] - x.at[7]);
        right[t] = withoutTraces(x.at[0] - x.at[1] + x.at[2] + x.at[3] + x.at[4] - x.at[5] - x.at[6] - x.at[7]);
        lines[0][t] = withoutTraces(y.at[0] + inLeft);
        lines[1][t] = withoutTraces(y.at[1] - inRight);
        lines[2][t] = withoutTraces(y.at[2] + inLeft);
        lines[3][t] = withoutTraces(y.at[3] + inRight);
        lines[4][t] = withoutTraces(y.at[4] - inLeft);
        lines[5][t] = withoutTraces(y.at[5] + inRight);
        lines[6][t] = withoutTraces(y.at[6] + inLeft);
        lines[7][t] = withoutTraces(y.at[7] - inRight);
    }
}

void ReverbNetwork::watch(bool loud, std::size_t frames) noexcept {
    quietFrames_ = loud ? 0 : quietFrames_ + frames;
    if (quietFrames_ >= quietForSleep) clear();
}

void ReverbNetwork::clear() noexcept {
    for (DelayLine& delay : diffuseLeft_) delay.clear();
    for (DelayLine& delay : diffuseRight_) delay.clear();
    for (DelayLine& delay : lines_) delay.clear();
    absorption_.clear();
    quietFrames_ = 0;
    asleep_ = true;
}

}  // namespace lyrebrook
