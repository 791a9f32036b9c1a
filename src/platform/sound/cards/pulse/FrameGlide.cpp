#include "platform/sound/cards/pulse/FrameGlide.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lyrebrook {
namespace {

double windowedSinc(double distance, double reach) {
    if (distance == 0.0) return 1.0;
    const double angle = std::numbers::pi * distance;
    const double window = 0.5 + 0.5 * std::cos(angle / reach);
    return std::sin(angle) / angle * window;
}

std::int16_t toSample(float value) noexcept {
    return static_cast<std::int16_t>(std::lrint(std::clamp(value, -32768.0F, 32767.0F)));
}

}  // namespace

FrameGlide::FrameGlide() : weights_(length) {
    for (std::size_t phase = 0; phase < length; ++phase) {
        const double place = static_cast<double>(before) + static_cast<double>(phase) / static_cast<double>(length);
        double sum = 0;
        std::array<double, taps> row{};
        for (std::size_t tap = 0; tap < taps; ++tap) {
            row[tap] = windowedSinc(static_cast<double>(tap) - place, static_cast<double>(from));
            sum += row[tap];
        }
        for (std::size_t tap = 0; tap < taps; ++tap) weights_[phase][tap] = static_cast<float>(row[tap] / sum);
    }
}

void FrameGlide::stop() {
    kind_ = Kind::none;
    phase_ = 0;
}

StereoFrame FrameGlide::read(std::span<const StereoFrame, before + from> around) const noexcept {
    if (phase_ == 0) return around[before];
    float left = 0;
    float right = 0;
    for (std::size_t tap = 0; tap < taps; ++tap) {
        left += weights_[phase_][tap] * static_cast<float>(around[tap].left);
        right += weights_[phase_][tap] * static_cast<float>(around[tap].right);
    }
    return {toSample(left), toSample(right)};
}

std::size_t FrameGlide::advance() noexcept {
    if (kind_ == Kind::none) return 1;
    const bool more = kind_ == Kind::oneMore;
    const bool first = phase_ == 0;
    phase_ = more ? (phase_ + length - 1) % length : (phase_ + 1) % length;
    const bool done = phase_ == 0;
    if (done) kind_ = Kind::none;
    if (more) return first ? 0 : 1;
    return done ? 2 : 1;
}

}  // namespace lyrebrook
