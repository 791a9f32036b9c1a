#include "platform/sound/SoundMemory.h"

#include <sys/mman.h>

#include <cstdint>
#include <memory>

#include "platform/base/RuntimeError.h"

namespace lyrebrook {
namespace {

constexpr std::size_t pageBytes = 4096;

/// Only advice, and only about whole pages; what lies at the ends of those stays as it is.
void askForLargePages(std::span<StereoFrame> frames) {
    void* first = frames.data();
    std::size_t space = frames.size_bytes();
    if (std::align(pageBytes, pageBytes, first, space) == nullptr) return;
    ::madvise(first, space / pageBytes * pageBytes, MADV_HUGEPAGE);
}

void touch(std::span<StereoFrame> frames) {
    for (std::size_t i = 0; i < frames.size(); i += pageBytes / sizeof(StereoFrame)) {
        *static_cast<volatile std::int16_t*>(&frames[i].left) = 0;
    }
}

}  // namespace

SoundMemory::SoundMemory(Frames length)
    : frames_(static_cast<StereoFrame*>(std::calloc(static_cast<std::size_t>(length), sizeof(StereoFrame)))),
      length_(length) {
    if (length > 0 && frames_ == nullptr) throw RuntimeError(RuntimeErrorNumber::outOfMemory, "Out of memory");
    askForLargePages(frames());
    touch(frames());
}

}  // namespace lyrebrook
