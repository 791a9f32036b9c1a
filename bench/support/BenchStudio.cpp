#include "support/BenchStudio.h"

#include <QDir>
#include <cmath>
#include <random>

#include "platform/sound/WaveFile.h"
#include "projects/SongData.h"
#include "shell/modConfig.h"

namespace lyrebrook {
namespace {

std::vector<StereoFrame> sound(std::size_t frames, int seed) {
    constexpr double loudness = 4000;
    std::minstd_rand noise(static_cast<std::uint32_t>(seed));
    std::uniform_int_distribution<int> grain(-2000, 2000);
    std::vector<StereoFrame> sound(frames);
    for (std::size_t i = 0; i < frames; ++i) {
        const double tone = loudness * std::sin(static_cast<double>(i) * 0.01 * seed);
        sound[i] = {static_cast<std::int16_t>(tone + grain(noise)), static_cast<std::int16_t>(tone - grain(noise))};
    }
    return sound;
}

}  // namespace

BenchStudio::BenchStudio() : folder_(QDir::current().filePath(QStringLiteral("studio"))), studio_(folder_.path()) {
    gSongName = QStringLiteral("Bench Song");
    writeSongData(songDataPath(gSongName), {.projectName = gSongName, .projectCategory = QStringLiteral("Rock")});
}

std::string BenchStudio::giveTrack(int track, std::chrono::seconds length) {
    const std::string file = trackFilePath(track).toStdString();
    writeWaveFile(file, sound(static_cast<std::size_t>(length.count()) * framesPerSecond, track));
    return file;
}

}  // namespace lyrebrook
