#include "platform/sound/SoundData.h"

#include <algorithm>

namespace lyrebrook {
namespace {

/// Far enough for a slow disk, near enough to cost nothing: 1.8 MB.
constexpr Frames touchedAhead = Frames{10} * framesPerSecond;
constexpr Frames framesPerPage = 4096 / bytesPerFrame;

}  // namespace

SoundData::SoundData(SoundMemory memory) : memory_(std::move(memory)), frames_(memory_.frames()) {}

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
