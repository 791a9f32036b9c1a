#pragma once

#include <filesystem>
#include <memory>
#include <span>

#include "platform/sound/SoundData.h"

namespace lyrebrook {

/// Reads a sound file. A file in the one format with the 44-byte header is mapped; anything else that libsndfile reads
/// is converted: mono to both sides, of more channels the first two, any rate. A data chunk that claims more than the
/// file holds is cut to what is there. RuntimeError when there is no sound to be had.
std::shared_ptr<SoundData> readWaveFile(const std::filesystem::path& path);

/// Replaces `path` by a wave file with a header of exactly 44 bytes: written beside it, flushed to the disk, renamed
/// over it. RuntimeError on failure, the old file is then whole and nothing is left beside it.
void writeWaveFile(const std::filesystem::path& path, std::span<const StereoFrame> frames);

}  // namespace lyrebrook
