#pragma once

#include <array>
#include <atomic>
#include <deque>
#include <memory>
#include <span>
#include <vector>

#include <readerwriterqueue/readerwriterqueue.h>

#include "platform/sound/SoundFormat.h"

namespace lyrebrook {

/// Sound waiting at the inputs of a virtual card. `feed` belongs to the program's thread, which also keeps and frees
/// the memory; `take` to the card's thread, which only reads it and reports when it is through.
class InputFeeds {
  public:
    static constexpr std::size_t inputCount = 4;

    void feed(std::size_t input, std::span<const StereoFrame> frames);

    /// Overwrites `interleavedStereo` with the next sound of an input, full scale 1.0, silence where there is none.
    void take(std::size_t input, std::span<float> interleavedStereo) noexcept;

  private:
    struct Feed {
        std::vector<StereoFrame> frames;
        std::atomic<bool> through{false};
    };
    struct Input {
        moodycamel::ReaderWriterQueue<Feed*> waiting;
        Feed* current = nullptr;
        std::size_t position = 0;
    };

    bool findCurrent(Input& input) noexcept;

    std::deque<std::unique_ptr<Feed>> kept_;
    std::array<Input, inputCount> inputs_;
};

}  // namespace lyrebrook
