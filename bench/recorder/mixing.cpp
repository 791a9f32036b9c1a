// What the card's thread needs to play a song: levels, pans and reverbs, beside tools that do the same to files.
#include "platform/sound/DirectSound8.h"
#include "platform/sound/SoundSystem.h"
#include "recorder/Tracks.h"
#include "recorder/soundBuffers.h"
#include "support/BenchStudio.h"
#include "support/BenchTable.h"
#include "support/Stopwatch.h"

namespace lyrebrook {
namespace {

constexpr std::chrono::minutes songLength{5};
constexpr Frames songFrames = std::chrono::seconds(songLength).count() * framesPerSecond;

enum class Effects { none, reverb };

class Song {
  public:
    Song() {
        for (int track = 1; track <= trackCount; ++track) files_.push_back(desk_.giveTrack(track, songLength));
    }

    const std::string& file(int track) const { return files_[static_cast<std::size_t>(track - 1)]; }

    /// Milliseconds of the processor for the first tracks, from their start to their end.
    double mixed(int tracks, Effects effects) {
        std::vector<std::unique_ptr<DirectSoundSecondaryBuffer8>> buffers;
        for (int track = 1; track <= tracks; ++track) buffers.push_back(started(track, effects));
        return costOf([this] { desk_.card().advance(songFrames); }).processor.count();
    }

  private:
    std::unique_ptr<DirectSoundSecondaryBuffer8> started(int track, Effects effects) {
        auto buffer = ds_.CreateSoundBufferFromFile(file(track), trackBufferDescription(0));
        buffer->SetVolume(-100 * track);
        buffer->SetPan(300 * track - 600);
        if (effects == Effects::reverb) addReverb(*buffer);
        buffer->Play(0);
        return buffer;
    }

    static void addReverb(DirectSoundSecondaryBuffer8& buffer) {
        const DSEFFECTDESC reverb{.lFlags = 0, .guidDSFXClass = std::string(GUID_DSFX_WAVES_REVERB)};
        std::int32_t result = 0;
        buffer.SetFX(1, {&reverb, 1}, {&result, 1});
        buffer.GetObjectInPath(GUID_DSFX_WAVES_REVERB, 0, IID_DirectSoundFXWavesReverb)
            ->SetAllParameters({.fInGain = 0, .fReverbMix = -10, .fReverbTime = 3000, .fHighFreqRTRatio = 0.1F});
    }

    BenchStudio desk_;
    DirectSound8 ds_{SoundSystem::engine()};
    std::vector<std::string> files_;
};

/// Without dither, which the card doesn't add either.
std::vector<std::string> sox(const Song& song) {
    std::vector<std::string> command{"sox", "-D", "-m"};
    for (int track = 1; track <= trackCount; ++track)
        command.insert(command.end(), {"-v", std::to_string(1.0 - 0.1 * track), song.file(track)});
    command.insert(command.end(), {"-t", "wav", "/dev/null"});
    return command;
}

std::vector<std::string> ecasound(const Song& song, int tracks) {
    const std::string freeverb = "-el:freeverb3,0,0.8,0.2,0.3,1,1";
    std::vector<std::string> command{"ecasound", "-q", "-f:s16_le,2,44100"};
    for (int track = 1; track <= tracks; ++track)
        command.insert(command.end(), {"-a:" + std::to_string(track), "-i:" + song.file(track), freeverb});
    command.insert(command.end(), {"-a:all", "-o:null"});
    return command;
}

void measure() {
    constexpr int withReverb = 3;
    Song song;
    sideBySide(
        {.name = "mix-four-tracks", .reference = "sox -m of the four tracks", .unit = "ms", .limit = 0.25},
        [&song] { return song.mixed(trackCount, Effects::none); },
        [&song] { return costOfCommand(sox(song)).processor.count(); });
    sideBySide(
        {.name = "mix-three-reverbs", .reference = "ecasound with three freeverbs", .unit = "ms", .limit = 0.5},
        [&song] { return song.mixed(withReverb, Effects::reverb); },
        [&song] { return costOfCommand(ecasound(song, withReverb)).processor.count(); });
}

}  // namespace
}  // namespace lyrebrook

int main() {
    lyrebrook::measure();
}
