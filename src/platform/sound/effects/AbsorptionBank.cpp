#include "platform/sound/effects/AbsorptionBank.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/sound/SoundFormat.h"
#include "platform/sound/wideLoops.h"

namespace lyrebrook {
namespace {

// The pole pair of a Butterworth low-pass at 6 kHz, the same for every line and every setting.
constexpr double reach = 2.2;  // 1 / tan(pi * corner / rate)
constexpr double reachSquared = reach * reach;
constexpr double poleScale = 1 + std::numbers::sqrt2 * reach + reachSquared;
constexpr float pole1 = static_cast<float>(2 * (1 - reachSquared) / poleScale);
constexpr float pole2 = static_cast<float>((1 - std::numbers::sqrt2 * reach + reachSquared) / poleScale);

double gainAfter(double frames, double millisecondsToMinus60) noexcept {
    return std::pow(10.0, -3.0 * frames / (millisecondsToMinus60 * 0.001 * framesPerSecond));
}

// A line that loses 80 dB in one round says nothing that could be heard.
double audible(double gain) noexcept {
    return gain < 1e-4 ? 0.0 : gain;
}

}  // namespace

void AbsorptionBank::setDecay(float milliseconds, float highRatio, Change change) noexcept {
    for (std::size_t line = 0; line < reverbLines; ++line) designLine(line, milliseconds, highRatio);
    if (change == Change::atOnce) zeros_ = zerosWanted_;
}

void AbsorptionBank::designLine(std::size_t line, float milliseconds, float highRatio) noexcept {
    const auto frames = static_cast<double>(delays_[line]);
    const double lowGain = audible(gainAfter(frames, milliseconds));
    // How much further the top falls than the rest, which places the zeros against the poles.
    const double zeroReachSquared = reachSquared * gainAfter(frames * (1.0 / highRatio - 1.0), milliseconds);
    const double zeroReach = std::numbers::sqrt2 * std::sqrt(zeroReachSquared);
    // The mixing of the lines needs this factor to keep the energy; here it costs nothing.
    const double scale = lowGain / poleScale / std::sqrt(static_cast<double>(reverbLines));
    zerosWanted_[0][line] = static_cast<float>(scale * (1 + zeroReach + zeroReachSquared));
    zerosWanted_[1][line] = static_cast<float>(scale * 2 * (1 - zeroReachSquared));
    zerosWanted_[2][line] = static_cast<float>(scale * (1 - zeroReach + zeroReachSquared));
}

void AbsorptionBank::glide(std::size_t frames) noexcept {
    const float step = glideStep(frames);
    for (std::size_t zero = 0; zero < zeros_.size(); ++zero) {
        for (std::size_t line = 0; line < reverbLines; ++line) {
            zeros_[zero][line] = glided(zeros_[zero][line], zerosWanted_[zero][line], step);
        }
    }
}

LYREBROOK_WIDE_LOOPS void AbsorptionBank::process(LineSlices& lines, std::size_t frames) noexcept {
    glide(frames);
    for (std::size_t t = 0; t < frames; ++t) {
        for (std::size_t line = 0; line < reverbLines; ++line) in_[t + history][line] = lines[line][t];
    }
    const Lanes zero0 = zeros_[0], zero1 = zeros_[1], zero2 = zeros_[2];
    for (std::size_t t = 0; t < frames; ++t) {
        for (std::size_t line = 0; line < reverbLines; ++line) {
            out_[t + 2][line] =
                zero0[line] * in_[t + 2][line] + zero1[line] * in_[t + 1][line] + zero2[line] * in_[t][line];
        }
    }
    Lanes before = out_[1];
    Lanes beforeThat = out_[0];
    for (std::size_t t = 0; t < frames; ++t) {
        for (std::size_t line = 0; line < reverbLines; ++line) {
            // In this order only one multiplication and one sum wait for the frame before.
            const float now = (out_[t + history][line] - pole2 * beforeThat[line]) - pole1 * before[line];
            beforeThat[line] = before[line];
            out_[t + history][line] = before[line] = now;
        }
    }
    for (std::size_t t = 0; t < frames; ++t) {
        for (std::size_t line = 0; line < reverbLines; ++line) lines[line][t] = out_[t + history][line];
    }
    keepForNextSlice(frames);
}

void AbsorptionBank::keepForNextSlice(std::size_t frames) noexcept {
    for (std::size_t row = 0; row < history; ++row) {
        in_[row] = in_[frames + row];
        std::transform(out_[frames + row].begin(), out_[frames + row].end(), out_[row].begin(), withoutTraces);
    }
}

void AbsorptionBank::clear() noexcept {
    in_ = {};
    out_ = {};
}

}  // namespace lyrebrook
