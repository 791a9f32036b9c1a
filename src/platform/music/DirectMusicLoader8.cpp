#include "platform/music/DirectMusicLoader8.h"

#include "platform/base/FileErrors.h"
#include "platform/music/MidiFile.h"
#include "platform/music/MidiMusic.h"
#include "platform/music/WaveMusic.h"

#include <cerrno>
#include <fstream>
#include <vector>

namespace lyrebrook {
namespace {

// A hundred times a long song; what is larger is no MIDI file, whatever it begins with.
constexpr std::size_t longestMidiFile = std::size_t{64} << 20U;
constexpr std::size_t bytesToTellByIt = 12;

std::vector<std::uint8_t> beginningOf(const std::filesystem::path& path, std::size_t count) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw fileError(RuntimeErrorNumber::fileNotFound);
    std::vector<std::uint8_t> bytes(count);
    file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(count));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

std::shared_ptr<SegmentMusic> readMusic(const std::filesystem::path& path) {
    if (!std::filesystem::is_regular_file(path)) throw fileError(RuntimeErrorNumber::fileNotFound);
    if (!looksLikeMidi(beginningOf(path, bytesToTellByIt))) return std::make_shared<WaveMusic>(path);
    const std::size_t size = std::min<std::size_t>(std::filesystem::file_size(path), longestMidiFile);
    auto music = std::make_shared<MidiMusic>(readMidiFile(beginningOf(path, size)));
    music->loadInstruments();
    return music;
}

}  // namespace

std::unique_ptr<DirectMusicSegment8> DirectMusicLoader8::LoadSegment(const std::filesystem::path& path) {
    try {
        return std::make_unique<DirectMusicSegment8>(readMusic(path));
    } catch (const std::filesystem::filesystem_error& failure) {
        throw fileErrorOf(failure.code().value());
    }
}

}  // namespace lyrebrook
