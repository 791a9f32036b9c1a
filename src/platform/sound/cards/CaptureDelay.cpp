#include "platform/sound/cards/CaptureDelay.h"

#include "platform/sound/EngineUnit.h"

namespace lyrebrook {

CaptureDelay::CaptureDelay(Frames latency)
    : latency_(latency), ring_(static_cast<std::size_t>(latency) + mixBlockFrames), outgoing_(mixBlockFrames) {}

void CaptureDelay::put(std::span<const StereoFrame> frames, bool lost) noexcept {
    for (const StereoFrame frame : frames) slot(put_++) = {frame, lost};
}

void CaptureDelay::deliver(SoundCardClient& client) noexcept {
    const Frames end = put_ - latency_;
    while (delivered_ < end) {
        const std::size_t ready = collect(end);
        if (ready == 0) {
            ++delivered_;
            continue;
        }
        const Frames first = delivered_;
        delivered_ += static_cast<Frames>(ready);
        client.framesCaptured(first, std::span{outgoing_}.first(ready));
    }
}

/// Copies what joins on without a loss.
std::size_t CaptureDelay::collect(Frames end) noexcept {
    std::size_t count = 0;
    for (Frames at = delivered_; at < end && count < outgoing_.size() && !slot(at).lost; ++at) {
        outgoing_[count++] = slot(at).frame;
    }
    return count;
}

CaptureDelay::Slot& CaptureDelay::slot(Frames index) noexcept {
    return ring_[static_cast<std::size_t>(index) % ring_.size()];
}

}  // namespace lyrebrook
