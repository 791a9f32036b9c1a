#pragma once

#include <filesystem>

#include "platform/sound/SoundMemory.h"

namespace lyrebrook {

/// The sound of any file that libsndfile reads, in the one format. Mono goes to both sides, of more channels the first
/// two are taken, numbers that aren't finite become silence. RuntimeError when there is no sound to be had or more than
/// a buffer holds.
SoundMemory convertSoundFile(const std::filesystem::path& path);

}  // namespace lyrebrook
