#include "platform/sound/SoundData.h"

#include <algorithm>
#include <new>

#include "platform/base/RuntimeError.h"

namespace lyrebrook {
namespace {

/// Far enough for a slow disk, near enough to cost nothing: 1.8 MB.
constexpr Frames touchedAhead = Frames{10} * framesPerSecond;
constexpr Frames framesPerPage = 4096 / bytesPerFrame;

}  // namespace

std::vector<StereoFrame> silentFrames(Frames length) {
    try {
        return std::vector<StereoFrame>(static_cast<std::size_t>(length));
    } catch (const std::bad_alloc&) {
        throw RuntimeError(RuntimeErrorNumber::outOfMemory, "Out of memory");
    }
}

SoundData::SoundData(std::vector<StereoFrame> frames) : memory_(std::move(frames)), frames_(memory_) {}

SoundData::SoundData(std::unique_ptr<MappedFile> file, std::size_t offsetBytes, Frames length)
    : file_(std::move(file)),
      frames_(reinterpret_cast<StereoFrame*>(file_->bytes().data() + offsetBytes), static_cast<std::size_t>(length)) {}

void SoundData::touchAhead(Frames from) noexcept {
    if (file_ == nullptr) return;
    const Frames to = std::min(from + touchedAhead, length());
    const bool goesOn = from >= touchedFrom_ && from <= touchedTo_;
    touch(goesOn ? touchedTo_ : from, to);
    if (!goesOn) touchedFrom_ = from;
    touchedTo_ = goesOn ? std::max(touchedTo_, to) : to;
}

void SoundData::touch(Frames from, Frames to) noexcept {
    for (Frames at = from; at < to; at += framesPerPage) {
        static_cast<void>(*static_cast<const volatile std::int16_t*>(&frames_[static_cast<std::size_t>(at)].left));
    }
}

}  // namespace lyrebrook
