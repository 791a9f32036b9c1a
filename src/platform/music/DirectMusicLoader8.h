#pragma once

#include "platform/music/DirectMusicSegment8.h"

#include <filesystem>
#include <memory>

namespace lyrebrook {

/// Reads files into segments. The form's thread only.
class DirectMusicLoader8 {
  public:
    /// Tells by the content, not by the name: a standard MIDI file, one inside a RIFF file, else any sound that the
    /// sound layer reads. What a torn file still holds is played. RuntimeError when that is nothing.
    std::unique_ptr<DirectMusicSegment8> LoadSegment(const std::filesystem::path& path);
};

}  // namespace lyrebrook
