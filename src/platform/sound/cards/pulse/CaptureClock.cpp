#include "platform/sound/cards/pulse/CaptureClock.h"

#include <algorithm>
#include <cmath>

namespace lyrebrook {
namespace {

/// A measured lead trembles by less than the first; correcting goes on until the error is below the second.
constexpr double correctFrom = framesPerSecond * 0.00025;
constexpr double correctTo = 1.0;

/// Drift doesn't come that fast.
constexpr double leapFrom = framesPerSecond * 0.0025;

}  // namespace

CaptureClock::CaptureClock() : ring_(ringFrames) {}

void CaptureClock::restart() {
    interrupt();
    end_ = 0;
    at_ = 0;
}

void CaptureClock::interrupt() {
    glide_.stop();
    placed_ = false;
    correcting_ = false;
}

void CaptureClock::take(std::span<const StereoFrame> frames) noexcept {
    for (const StereoFrame frame : frames) put(frame);
}

void CaptureClock::lose(Frames frames) noexcept {
    lost_ += frames;
    for (Frames i = 0; i < frames; ++i) put({});
}

void CaptureClock::put(StereoFrame frame) noexcept {
    ring_[static_cast<std::size_t>(end_++) % ringFrames] = frame;
    const Frames oldest = end_ - static_cast<Frames>(ringFrames - FrameGlide::before);
    if (at_ >= oldest) return;
    ++at_;
    ++place_;
}

void CaptureClock::deliver(double lead, SoundCardClient& client) noexcept {
    if (!placed_) findPlace(std::lrint(lead));
    while (ready()) {
        correct(lead);
        const std::size_t count = fillBlock();
        const Frames first = place_;
        place_ += static_cast<Frames>(count);
        if (count > 0) client.framesCaptured(first, std::span{block_}.first(count));
    }
}

/// Where an input that was opened anew would overlap with what was there before, its first frames are left out.
void CaptureClock::findPlace(Frames lead) noexcept {
    const Frames step = at_ + lead - place_;
    if (resting_ && step > 0) {
        place_ += step;
    } else {
        leap(step);
    }
    placed_ = true;
    resting_ = false;
}

void CaptureClock::correct(double lead) noexcept {
    if (glide_.gliding()) return;
    const double error = lead - static_cast<double>(place_ - at_);
    if (std::abs(error) > leapFrom) return leap(std::lrint(error));
    correcting_ = std::abs(error) >= (correcting_ ? correctTo : correctFrom);
    if (correcting_) glide_.begin(error > 0 ? FrameGlide::Kind::oneMore : FrameGlide::Kind::oneLess);
}

void CaptureClock::leap(Frames frames) noexcept {
    if (frames > 0) {
        place_ += frames;
        lost_ += frames;
    } else {
        at_ -= frames;
    }
}

std::size_t CaptureClock::fillBlock() noexcept {
    return glide_.gliding() ? fillGliding() : fillSteady();
}

std::size_t CaptureClock::fillSteady() noexcept {
    const Frames count = std::clamp<Frames>(end_ - at_ - lookAhead, 0, mixBlockFrames);
    for (Frames i = 0; i < count; ++i) {
        block_[static_cast<std::size_t>(i)] = ring_[static_cast<std::size_t>(at_ + i) % ringFrames];
    }
    at_ += count;
    return static_cast<std::size_t>(count);
}

std::size_t CaptureClock::fillGliding() noexcept {
    std::size_t count = 0;
    while (count < block_.size() && ready() && glide_.gliding()) {
        block_[count++] = glide_.read(around(at_));
        at_ += static_cast<Frames>(glide_.advance());
    }
    return count;
}

std::array<StereoFrame, FrameGlide::before + FrameGlide::from> CaptureClock::around(Frames frame) const noexcept {
    std::array<StereoFrame, FrameGlide::before + FrameGlide::from> found;
    auto number = static_cast<std::size_t>(frame) + ringFrames - FrameGlide::before;
    for (StereoFrame& each : found) each = ring_[number++ % ringFrames];
    return found;
}

}  // namespace lyrebrook
