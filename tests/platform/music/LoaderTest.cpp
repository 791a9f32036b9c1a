#include "MusicDesk.h"
#include "platform/base/RuntimeError.h"

#include <sndfile.h>

#include <numbers>

namespace lyrebrook {
namespace {

const std::string twoKnocks = midiFile({knock(0) + knock(100) + endOfTrack});

class Loader : public testing::Test {
  protected:
    /// One second of a tone at 1000 Hz and half of full scale.
    std::filesystem::path tone(const std::string& name, int rate, int channels, int format) const {
        SF_INFO info{0, rate, channels, format, 0, 0};
        const auto path = desk.folder / name;
        SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
        for (int i = 0; i < rate; ++i) {
            const auto level = static_cast<float>(0.5 * std::sin(2000 * std::numbers::pi * i / rate));
            const std::vector<float> frame(static_cast<std::size_t>(channels), level);
            sf_writef_float(file, frame.data(), 1);
        }
        sf_close(file);
        return path;
    }

    Sound sounded(const std::filesystem::path& path) {
        const auto segment = desk.dxLoader->LoadSegment(path);
        segment->SetStandardMidiFile();
        return desk.playToTheEnd(*segment);
    }

    MusicDesk desk;
};

double secondsOf(const Sound& sound) {
    return static_cast<double>(sound.size()) / framesPerSecond;
}

int risingCrossings(const Sound& sound) {
    int found = 0;
    for (std::size_t i = 1; i < sound.size(); ++i) found += sound[i - 1].right < 0 && sound[i].right >= 0 ? 1 : 0;
    return found;
}

TEST_F(Loader, WavesOfAnyKindSoundAtTheirPitchAndLengthWhateverTheTempo) {
    desk.performance->SetMasterTempo(2);
    const std::filesystem::path tones[] = {tone("fast.wav", 96000, 1, SF_FORMAT_WAV | SF_FORMAT_PCM_24),
                                           tone("byte.wav", 22050, 2, SF_FORMAT_WAV | SF_FORMAT_PCM_U8),
                                           tone("float.mid", 48000, 2, SF_FORMAT_WAV | SF_FORMAT_FLOAT),
                                           tone("exact.wav", 44100, 2, SF_FORMAT_WAV | SF_FORMAT_PCM_16)};
    for (const auto& path : tones) {
        const Sound sound = sounded(path);
        EXPECT_NEAR(risingCrossings(sound), 1000, 2) << path;
        EXPECT_NEAR(secondsOf(sound), 1, 0.012) << path;
        EXPECT_NEAR(std::ranges::max(sound, {}, &StereoFrame::right).right, 16384, 300) << path;
    }
}

TEST_F(Loader, WhatATornFileOfAnyNameStillHoldsIsPlayed) {
    const std::string oneKnockLeft = twoKnocks.substr(0, twoKnocks.size() - 10);
    EXPECT_EQ(beginnings(sounded(desk.file("torn.wav", oneKnockLeft))).size(), 1U);

    const auto wave = tone("claims more.wav", 44100, 2, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
    std::filesystem::resize_file(wave, 44 + 4 * 30000);
    EXPECT_NEAR(secondsOf(sounded(wave)), 30000.0 / 44100, 0.012);
}

TEST_F(Loader, TheShippedSongIsAMinuteLongAndDoesNotClip) {
    const auto song = desk.dxLoader->LoadSegment(SHIPPED_SONG);
    const Sound sound = desk.playToTheEnd(*song);
    EXPECT_EQ(desk.ends, 1);
    EXPECT_NEAR(secondsOf(sound), 63, 3);
    const auto loudest = std::ranges::max(sound, {}, &StereoFrame::left).left;
    EXPECT_GT(loudest, 12000);
    EXPECT_LT(loudest, 30000);
}

TEST_F(Loader, WhatHoldsNoMusicIsAnErrorWithADescription) {
    const auto noChannels = tone("none.wav", 44100, 1, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
    std::fstream(noChannels, std::ios::in | std::ios::out | std::ios::binary).seekp(22).write("\0\0", 2);
    std::string noise(5000, ' ');
    for (std::size_t i = 0; i < noise.size(); ++i) noise[i] = static_cast<char>(i * i * 7919 >> 5);
    const std::filesystem::path files[] = {desk.folder / "missing.mid",
                                           desk.folder,
                                           noChannels,
                                           desk.file("empty.wav", ""),
                                           desk.file("noise.mid", noise),
                                           desk.file("header.mid", "MThd"),
                                           desk.file("header.wav", "RIFF" + std::string(4, '\xFF') + "WAVEfmt ")};
    for (const auto& path : files) {
        try {
            desk.dxLoader->LoadSegment(path);
            ADD_FAILURE() << path;
        } catch (const RuntimeError& error) {
            EXPECT_FALSE(error.description().empty()) << path;
        }
    }
}

}  // namespace
}  // namespace lyrebrook
