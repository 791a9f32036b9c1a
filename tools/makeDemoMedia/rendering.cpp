#include "rendering.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <memory>
#include <string>

#include "composer/score.h"
#include "platform/music/MidiFile.h"
#include "platform/music/MidiMusic.h"
#include "platform/music/SoundFont.h"
#include "platform/sound/mixing.h"

namespace lyrebrook {

namespace {

std::vector<float> renderScore(const std::string& score) {
    loadSoundFont(systemSoundFonts());
    MidiMusic music(readMidiFile(std::vector<std::uint8_t>(score.begin(), score.end())));
    music.loadInstruments();
    const auto source = music.makeSource({.tempo = std::make_shared<std::atomic<float>>(1.0F)});

    std::vector<float> sound;
    std::array<float, 4096> block{};
    std::size_t samples = block.size();
    while (samples == block.size()) {
        samples = 2 * source->render(block);
        sound.insert(sound.end(), block.begin(), block.begin() + static_cast<std::ptrdiff_t>(samples));
    }
    return sound;
}

// As loud as a song on a CD: its peak stands a decibel below full scale.
void master(std::vector<float>& sound) {
    constexpr float target = 0.89F;
    float peak = 0;
    for (const float sample : sound) peak = std::max(peak, std::abs(sample));
    for (float& sample : sound) sample *= target / peak;
}

}  // namespace

std::vector<StereoFrame> renderTune(const Arrangement& tune) {
    std::vector<float> sound = renderScore(scoreOf(tune));
    master(sound);
    std::vector<StereoFrame> frames(sound.size() / 2);
    toFrames(sound, frames);
    return frames;
}

}  // namespace lyrebrook
