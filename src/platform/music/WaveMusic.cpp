#include "platform/music/WaveMusic.h"

#include "platform/base/RuntimeError.h"
#include "platform/sound/WaveFile.h"

#include <algorithm>

namespace lyrebrook {
namespace {

constexpr float fullScale = 32768;

/// Ends with the last frame of the sound's last round.
class WaveSource final : public SegmentSource {
  public:
    WaveSource(std::shared_ptr<SoundData> sound, std::int32_t repeats)
        : sound_(std::move(sound)), frames_(sound_->frames()), repeats_(repeats) {}

    void readAhead() noexcept override { sound_->touchAhead(position_.load(std::memory_order_relaxed)); }

    std::size_t render(std::span<float> interleavedStereo) noexcept override;

  private:
    bool hasMore() noexcept;

    std::shared_ptr<SoundData> sound_;
    std::span<const StereoFrame> frames_;
    std::int32_t repeats_;
    std::atomic<Frames> position_{0};  // the card's thread alone moves it
};

std::size_t WaveSource::render(std::span<float> interleavedStereo) noexcept {
    const std::size_t wanted = interleavedStereo.size() / 2;
    std::size_t written = 0;
    while (written < wanted && hasMore()) {
        const auto from = static_cast<std::size_t>(position_.load(std::memory_order_relaxed));
        const auto part = frames_.subspan(from, std::min(wanted - written, frames_.size() - from));
        float* out = interleavedStereo.data() + 2 * written;
        for (const StereoFrame& frame : part) {
            *out++ = static_cast<float>(frame.left) / fullScale;
            *out++ = static_cast<float>(frame.right) / fullScale;
        }
        written += part.size();
        position_.store(static_cast<Frames>(from + part.size()), std::memory_order_relaxed);
    }
    return written;
}

bool WaveSource::hasMore() noexcept {
    if (position_.load(std::memory_order_relaxed) < sound_->length()) return true;
    if (repeats_ == 0) return false;
    if (repeats_ > 0) --repeats_;
    position_.store(0, std::memory_order_relaxed);
    return true;
}

}  // namespace

WaveMusic::WaveMusic(const std::filesystem::path& path) : sound_(readWaveFile(path)) {
    if (sound_->length() == 0) {
        throw RuntimeError(RuntimeErrorNumber::deviceInputOutput, "The file holds no sound.");
    }
}

std::unique_ptr<SegmentSource> WaveMusic::makeSource(const Playing& playing) {
    auto source = std::make_unique<WaveSource>(sound_, playing.repeats);
    source->readAhead();
    return source;
}

}  // namespace lyrebrook
