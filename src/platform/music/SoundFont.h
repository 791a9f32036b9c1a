#pragma once

#include <filesystem>
#include <vector>

namespace lyrebrook {

/// Where Debian and its kin keep a General MIDI SoundFont, best first.
std::vector<std::filesystem::path> systemSoundFonts();

/// Finds the first of `candidates` that exists and keeps its samples in memory for the rest of the process, so that a
/// synthesizer made later is ready in some 40 ms. Costs some 0.2 s the first time, 0.7 s from a cold disk. The form's
/// thread only. RuntimeError, with the name of the package to install, when there is none or it can't be read.
void loadSoundFont(const std::vector<std::filesystem::path>& candidates);

/// The one that `loadSoundFont` loaded. RuntimeError when it hasn't.
const std::filesystem::path& loadedSoundFont();

}  // namespace lyrebrook
