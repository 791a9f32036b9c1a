#include "platform/sound/CaptureTape.h"

#include <algorithm>
#include <atomic>
#include <cstring>

namespace lyrebrook {

CaptureTape::CaptureTape(Frames length) : memory_(length), frames_(memory_.frames()) {}

void CaptureTape::apply(const EngineCommand& command, Frames at) noexcept {
    ticket_ = command.ticket;
    running_ = command.verb == Verb::start && length() > 0;
    if (command.verb == Verb::start) {
        looping_ = command.looping;
        origin_ = at;
        laid_ = 0;
        missed_.store(0, std::memory_order_relaxed);
        if (command.beside != nullptr) besideAtStart_.store({ticket_, true, command.beside->cursor()});
    }
    publish();
}

void CaptureTape::capture(Frames soundingAt, std::span<const StereoFrame> frames) noexcept {
    if (!running_) return;
    const Frames early = std::clamp<Frames>(origin_ - soundingAt, 0, static_cast<Frames>(frames.size()));
    const Frames place = soundingAt + early - origin_;
    frames = frames.subspan(static_cast<std::size_t>(early));
    if (frames.empty()) return;
    if (!looping_) {
        const Frames room = std::clamp<Frames>(length() - place, 0, static_cast<Frames>(frames.size()));
        frames = frames.first(static_cast<std::size_t>(room));
    }
    missed_.store(missed() + std::max<Frames>(0, place - laid_), std::memory_order_relaxed);
    fillUpTo(place);
    lay(place, frames);
    running_ = looping_ || laid_ < length();
    publish();
}

/// A lap of silence is as long as silence can get.
void CaptureTape::fillUpTo(Frames place) noexcept {
    const Frames end = looping_ ? place : std::min(place, length());
    for (Frames at = std::max(laid_, end - length()); at < end; ++at) put(at, {});
    laid_ = std::max(laid_, end);
}

void CaptureTape::lay(Frames place, std::span<const StereoFrame> frames) noexcept {
    for (const StereoFrame frame : frames) {
        // Frames that come late go where they belong, unless a loop has passed the place again.
        if (place >= laid_ - length()) put(place, frame);
        ++place;
        laid_ = std::max(laid_, place);
    }
}

void CaptureTape::put(Frames place, StereoFrame frame) noexcept {
    StereoFrame& target = frames_[static_cast<std::size_t>(place % length())];
    std::atomic_ref(target).store(frame, std::memory_order_relaxed);
}

void CaptureTape::publish() noexcept {
    published_.store({ticket_, running_, looping_ && length() > 0 ? laid_ % length() : laid_});
}

void CaptureTape::read(std::size_t start, std::span<std::byte> bytes) const noexcept {
    while (!bytes.empty()) {
        const std::size_t inside = start % sizeof(StereoFrame);
        const std::size_t place = start / sizeof(StereoFrame);
        std::size_t part = bytes.size() / sizeof(StereoFrame) * sizeof(StereoFrame);
        if (inside == 0 && part > 0) {
            readWhole(place, bytes.first(part));
        } else {
            part = std::min(sizeof(StereoFrame) - inside, bytes.size());
            const StereoFrame frame = at(place);
            std::memcpy(bytes.data(), reinterpret_cast<const std::byte*>(&frame) + inside, part);
        }
        bytes = bytes.subspan(part);
        start += part;
    }
}

void CaptureTape::readWhole(std::size_t first, std::span<std::byte> bytes) const noexcept {
    for (std::size_t i = 0; i < bytes.size() / sizeof(StereoFrame); ++i) {
        const StereoFrame frame = at(first + i);
        std::memcpy(bytes.data() + i * sizeof frame, &frame, sizeof frame);
    }
}

StereoFrame CaptureTape::at(std::size_t place) const noexcept {
    return std::atomic_ref(frames_[place]).load(std::memory_order_relaxed);
}

}  // namespace lyrebrook
