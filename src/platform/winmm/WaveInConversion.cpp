#include "platform/winmm/WaveInConversion.h"

#include <cstdint>

namespace lyrebrook {
namespace {

void putSample(std::int32_t value, bool wide, std::vector<std::byte>& sound) {
    const auto bits = static_cast<std::uint32_t>(value);
    if (wide) {
        sound.push_back(static_cast<std::byte>(bits & 0xFFU));
        sound.push_back(static_cast<std::byte>(bits >> 8U & 0xFFU));
    } else {
        sound.push_back(static_cast<std::byte>((bits >> 8U & 0xFFU) ^ 0x80U));
    }
}

}  // namespace

bool isWaveInFormat(const WAVEFORMATEX& format) {
    const bool rate = format.lSamplesPerSec == framesPerSecond || format.lSamplesPerSec == framesPerSecond / 2 ||
                      format.lSamplesPerSec == framesPerSecond / 4;
    const bool channels = format.nChannels == 1 || format.nChannels == 2;
    const bool bits = format.nBitsPerSample == 8 || format.nBitsPerSample == 16;
    return format.nFormatTag == 1 && rate && channels && bits &&
           format.nBlockAlign == format.nChannels * format.nBitsPerSample / 8;
}

WaveInConversion::WaveInConversion(const WAVEFORMATEX& to)
    : framesForOne_(static_cast<std::size_t>(framesPerSecond / to.lSamplesPerSec)),
      stereo_(to.nChannels == 2),
      wide_(to.nBitsPerSample == 16) {}

std::vector<std::byte> WaveInConversion::convert(std::span<const StereoFrame> frames) {
    std::vector<std::byte> sound;
    pending_.insert(pending_.end(), frames.begin(), frames.end());
    const std::size_t whole = pending_.size() - pending_.size() % framesForOne_;
    for (std::size_t at = 0; at < whole; at += framesForOne_)
        put(std::span(pending_).subspan(at, framesForOne_), sound);
    pending_.erase(pending_.begin(), pending_.begin() + static_cast<std::ptrdiff_t>(whole));
    return sound;
}

void WaveInConversion::put(std::span<const StereoFrame> frames, std::vector<std::byte>& sound) const {
    std::int32_t left = 0;
    std::int32_t right = 0;
    for (const StereoFrame frame : frames) {
        left += frame.left;
        right += frame.right;
    }
    const auto count = static_cast<std::int32_t>(frames.size());
    if (!stereo_) return putSample((left + right) / (2 * count), wide_, sound);
    putSample(left / count, wide_, sound);
    putSample(right / count, wide_, sound);
}

}  // namespace lyrebrook
