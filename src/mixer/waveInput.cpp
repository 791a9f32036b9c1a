#include "mixer/waveInput.h"

#include <algorithm>
#include <cstring>

namespace lyrebrook {

std::vector<WaveFormatEntry> gRecFormats;
std::int32_t gRecFormatCount = 0;
std::int32_t gRecFormatIndex = 0;
std::int32_t gWaveInDeviceID = WAVE_MAPPER;
HWAVEIN gWaveInHandle = 0;
bool gCapturing = false;
std::array<WAVEHDR, 16> gInputHeaders;
std::int32_t gLeftLevel = 0;
std::int32_t gRightLevel = 0;

namespace {

struct KnownFormat {
    std::int32_t bit;
    WaveFormatEntry entry;
};

constexpr std::array<KnownFormat, 12> knownFormats{{
    {WAVE_FORMAT_1M08, {1, 11025, 8}},
    {WAVE_FORMAT_1S08, {2, 11025, 8}},
    {WAVE_FORMAT_1M16, {1, 11025, 16}},
    {WAVE_FORMAT_1S16, {2, 11025, 16}},
    {WAVE_FORMAT_2M08, {1, 22050, 8}},
    {WAVE_FORMAT_2S08, {2, 22050, 8}},
    {WAVE_FORMAT_2M16, {1, 22050, 16}},
    {WAVE_FORMAT_2S16, {2, 22050, 16}},
    {WAVE_FORMAT_4M08, {1, 44100, 8}},
    {WAVE_FORMAT_4S08, {2, 44100, 8}},
    {WAVE_FORMAT_4M16, {1, 44100, 16}},
    {WAVE_FORMAT_4S16, {2, 44100, 16}},
}};

std::vector<std::int32_t> samplesOf(const WAVEHDR& header, std::int32_t bitsPerSample) {
    const auto bytes = static_cast<std::size_t>(header.dwBytesRecorded);
    if (bitsPerSample == 8) {
        constexpr std::int32_t silence = 128;
        std::vector<std::int32_t> samples(bytes);
        std::transform(header.lpData, header.lpData + bytes, samples.begin(),
                       [](std::byte sample) { return std::max(0, std::to_integer<std::int32_t>(sample) - silence); });
        return samples;
    }
    std::vector<std::int16_t> samples(bytes / sizeof(std::int16_t));
    std::memcpy(samples.data(), header.lpData, samples.size() * sizeof(std::int16_t));
    return {samples.begin(), samples.end()};
}

}  // namespace

bool getWaveInFormats(std::int32_t device, std::int32_t& count, std::vector<WaveFormatEntry>& formats) {
    count = 0;
    WAVEINCAPS caps;
    if (waveInGetDevCapsA(device, caps, sizeof caps) != MMSYSERR_NOERROR) return false;
    formats.clear();
    for (const KnownFormat& known : knownFormats) {
        if (caps.dwFormats & known.bit) formats.push_back(known.entry);
    }
    count = static_cast<std::int32_t>(formats.size());
    return count > 0;
}

InputPeaks getInputPeaks(const WAVEHDR& header, const WaveFormatEntry& format) {
    InputPeaks peaks;
    if (header.dwBytesRecorded <= 0) return peaks;
    bool isRight = false;
    for (const std::int32_t sample : samplesOf(header, format.bitsPerSample)) {
        std::int32_t& peak = isRight ? peaks.right : peaks.left;
        peak = std::max(peak, sample);
        isRight = format.channels != 1 && !isRight;
    }
    if (format.channels == 1) peaks.right = peaks.left;
    return peaks;
}

std::int32_t fullScaleOf(const WaveFormatEntry& format) {
    return format.bitsPerSample == 8 ? 128 : 32768;
}

}  // namespace lyrebrook
