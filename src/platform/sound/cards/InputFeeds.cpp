#include "platform/sound/cards/InputFeeds.h"

#include <algorithm>

#include "platform/sound/mixing.h"

namespace lyrebrook {

void InputFeeds::feed(std::size_t input, std::span<const StereoFrame> frames) {
    std::erase_if(kept_, [](const auto& feed) { return feed->through.load(std::memory_order_acquire); });
    kept_.push_back(std::make_unique<Feed>());
    kept_.back()->frames.assign(frames.begin(), frames.end());
    inputs_.at(input).waiting.enqueue(kept_.back().get());
}

void InputFeeds::take(std::size_t input, std::span<float> interleavedStereo) noexcept {
    Input& from = inputs_[input];
    while (!interleavedStereo.empty() && findCurrent(from)) {
        const auto rest = std::span<const StereoFrame>(from.current->frames).subspan(from.position);
        const auto part = rest.first(std::min(rest.size(), interleavedStereo.size() / 2));
        toFloats(part, interleavedStereo);
        from.position += part.size();
        interleavedStereo = interleavedStereo.subspan(2 * part.size());
    }
    std::ranges::fill(interleavedStereo, 0.0F);
}

bool InputFeeds::findCurrent(Input& input) noexcept {
    while (input.current == nullptr || input.position == input.current->frames.size()) {
        if (input.current != nullptr) input.current->through.store(true, std::memory_order_release);
        input.current = nullptr;
        input.position = 0;
        if (!input.waiting.try_dequeue(input.current)) return false;
    }
    return true;
}

}  // namespace lyrebrook
