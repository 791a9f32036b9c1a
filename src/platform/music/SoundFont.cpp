#include "platform/music/SoundFont.h"

#include "platform/base/RuntimeError.h"
#include "platform/music/Synthesizer.h"

#include <algorithm>
#include <optional>

namespace lyrebrook {
namespace {

// The library shares samples between synthesizers as long as one of them lives; this one never plays.
struct Loaded {
    std::filesystem::path path;
    Synthesizer keeper;
};

std::optional<Loaded>& loaded() {
    static std::optional<Loaded> font;
    return font;
}

bool isThere(const std::filesystem::path& path) {
    std::error_code unreadable;
    return std::filesystem::is_regular_file(path, unreadable);
}

}  // namespace

std::vector<std::filesystem::path> systemSoundFonts() {
    return {"/usr/share/sounds/sf2/default-GM.sf2", "/usr/share/sounds/sf2/FluidR3_GM.sf2",
            "/usr/share/sounds/sf2/TimGM6mb.sf2",   "/usr/share/soundfonts/default.sf2",
            "/usr/share/soundfonts/FluidR3_GM.sf2", "/usr/share/sounds/sf3/default-GM.sf3"};
}

void loadSoundFont(const std::vector<std::filesystem::path>& candidates) {
    const auto found = std::find_if(candidates.begin(), candidates.end(), isThere);
    if (found == candidates.end()) {
        throw RuntimeError(RuntimeErrorNumber::fileNotFound,
                           "MIDI music needs a General MIDI SoundFont, and none is installed. Install the package "
                           "\"fluid-soundfont-gm\" (or \"timgm6mb-soundfont\") and start the program again.");
    }
    if (!loaded() || loaded()->path != *found) loaded().emplace(Loaded{*found, Synthesizer(*found)});
}

const std::filesystem::path& loadedSoundFont() {
    if (!loaded()) throw RuntimeError(RuntimeErrorNumber::invalidProcedureCall, "No SoundFont has been loaded.");
    return loaded()->path;
}

}  // namespace lyrebrook
