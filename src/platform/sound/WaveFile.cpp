#include "platform/sound/WaveFile.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

#include "platform/base/ReplacingFile.h"
#include "platform/base/RuntimeError.h"
#include "platform/sound/SoundFileConversion.h"

namespace lyrebrook {
namespace {

static_assert(std::endian::native == std::endian::little, "wave files and frames are little-endian");

/// The 44 bytes in front of the sound, field by field as they lie in the file.
struct WaveHeader {
    std::array<char, 4> riff{'R', 'I', 'F', 'F'};
    std::uint32_t bytesThatFollow = 0;
    std::array<char, 8> waveAndFormat{'W', 'A', 'V', 'E', 'f', 'm', 't', ' '};
    std::uint32_t formatBytes = 16;
    std::uint16_t tag = 1;
    std::uint16_t channels = 2;
    std::uint32_t rate = framesPerSecond;
    std::uint32_t bytesPerSecondOfSound = bytesPerSecond;
    std::uint16_t frameBytes = bytesPerFrame;
    std::uint16_t bitsPerSample = 16;
    std::array<char, 4> data{'d', 'a', 't', 'a'};
    std::uint32_t soundBytes = 0;
};
static_assert(sizeof(WaveHeader) == headerBytes);

WaveHeader headerFor(std::uint32_t soundBytes) {
    WaveHeader header;
    header.bytesThatFollow = soundBytes + headerBytes - 8;
    header.soundBytes = soundBytes;
    return header;
}

/// True when all but the two sizes, which torn files have wrong, is as we write it.
bool isTrackHeader(WaveHeader header) {
    const WaveHeader expected;
    header.bytesThatFollow = 0;
    header.soundBytes = 0;
    return std::memcmp(&header, &expected, sizeof header) == 0;
}

std::shared_ptr<SoundData> mappedTrack(std::unique_ptr<MappedFile> file, std::uint32_t claimedBytes) {
    const std::size_t bytes = std::min<std::size_t>(file->bytes().size() - headerBytes, claimedBytes);
    const Frames length = wholeFrames(static_cast<std::int64_t>(bytes));
    if (length > longestBuffer) throw RuntimeError(RuntimeErrorNumber::overflow, "Overflow");
    return std::make_shared<SoundData>(std::move(file), headerBytes, length);
}

}  // namespace

std::shared_ptr<SoundData> readWaveFile(const std::filesystem::path& path) {
    auto file = std::make_unique<MappedFile>(path);
    WaveHeader header;
    if (file->bytes().size() >= sizeof header) {
        std::memcpy(&header, file->bytes().data(), sizeof header);
        if (isTrackHeader(header)) return mappedTrack(std::move(file), header.soundBytes);
    }
    return std::make_shared<SoundData>(convertSoundFile(path));
}

void writeWaveFile(const std::filesystem::path& path, std::span<const StereoFrame> frames) {
    if (frames.size() > static_cast<std::size_t>(longestBuffer))
        throw RuntimeError(RuntimeErrorNumber::overflow, "Overflow");
    const WaveHeader header = headerFor(static_cast<std::uint32_t>(frames.size_bytes()));
    ReplacingFile file(path);
    file.write(std::as_bytes(std::span{&header, 1}));
    file.write(std::as_bytes(frames));
    file.commit();
}

}  // namespace lyrebrook
