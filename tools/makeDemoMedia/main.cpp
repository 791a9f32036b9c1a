// Makes the songs and pictures of the example site: makeDemoMedia FOLDER. The folder must exist.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>

#include "pictures.h"
#include "platform/sound/WaveFile.h"
#include "rendering.h"
#include "tunes.h"

namespace lyrebrook {
namespace {

void savePicture(const QImage& picture, const std::filesystem::path& path) {
    constexpr int quality = 88;
    if (!picture.save(QString::fromStdString(path), "JPG", quality))
        throw std::runtime_error("can't save " + path.string());
}

void makeMedia(const std::filesystem::path& folder) {
    savePicture(paintMicrophone(), folder / "microphone.jpg");
    savePicture(paintHarbour(), folder / "harbour.jpg");
    savePicture(paintStage(), folder / "stage.jpg");
    writeWaveFile(folder / "lantern-street.wav", renderTune(lanternStreet()));
    writeWaveFile(folder / "harbour-in-the-rain.wav", renderTune(harbourInTheRain()));
    writeWaveFile(folder / "morning-train.wav", renderTune(morningTrain()));
}

}  // namespace
}  // namespace lyrebrook

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::fputs("usage: makeDemoMedia FOLDER\n", stderr);
        return 2;
    }
    try {
        lyrebrook::makeMedia(arguments[1]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "makeDemoMedia: %s\n", error.what());
        return 1;
    }
    return 0;
}
