#include "platform/sound/WaveFile.h"

#include <signal.h>
#include <sndfile.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <fstream>
#include <numbers>
#include <string>

#include "SoundDesk.h"
#include "platform/base/ReplacingFile.h"
#include "platform/base/RuntimeError.h"
#include "support/TemporaryFolder.h"

namespace lyrebrook {
namespace {

using Bytes = std::string;

class WaveFiles : public testing::Test {
  protected:
    std::filesystem::path write(const Bytes& bytes) const {
        std::ofstream(folder / "track.wav", std::ios::binary) << bytes;
        return folder / "track.wav";
    }
    static Bytes read(const std::filesystem::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static Sound load(const std::filesystem::path& path) {
        const auto data = readWaveFile(path);
        return {data->frames().begin(), data->frames().end()};
    }

    const TemporaryFolder temporary;
    const std::filesystem::path& folder = temporary.path;
};

Bytes number(std::uint32_t value, int bytes) {
    Bytes text;
    for (int i = 0; i < bytes; ++i) text += static_cast<char>(value >> (8 * i));
    return text;
}

Bytes header(std::uint32_t soundBytes, std::uint32_t channels = 2) {
    return "RIFF" + number(soundBytes + 36, 4) + "WAVEfmt " + number(16, 4) + number(1, 2) + number(channels, 2) +
           number(44100, 4) + number(88200 * channels, 4) + number(2 * channels, 2) + number(16, 2) + "data" +
           number(soundBytes, 4);
}

Bytes bytesOf(const Sound& sound) {
    const auto bytes = std::as_bytes(std::span(sound));
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

TEST_F(WaveFiles, ASavedBufferIsHeaderAndSoundAndReadsBack) {
    SoundDesk desk;
    const auto path = write("an older take");
    desk.buffer(ramp(1000))->SaveToFile(path);
    EXPECT_EQ(read(path), header(4000) + bytesOf(ramp(1000)));
    const auto loaded = desk.ds.CreateSoundBufferFromFile(path, {});
    const Sound other = ramp(10, 900);
    loaded->WriteBuffer(0, 40, std::as_bytes(std::span(other)), 0);
    EXPECT_EQ(read(path), header(4000) + bytesOf(ramp(1000)));
    desk.buffer(ramp(2000, 77))->SaveToFile(path);  // over the file that is mapped
    loaded->Play(0);
    desk.card->advance(1000);
    EXPECT_EQ(desk.heard, other + part(ramp(1000), 10, 990));
}

TEST_F(WaveFiles, TornFilesPlayWhatIsThere) {
    const Bytes sound = bytesOf(ramp(100));
    struct Case {
        const char* name;
        Bytes file;
        Frames frames;
    };
    for (const Case& at :
         {Case{"claims more than there is", header(40000) + sound, 100},
          Case{"never told its length", header(0xFFFFFFFF) + sound, 100},
          Case{"half a frame at the end", header(398) + sound.substr(0, 398), 99},
          Case{"something after the sound", header(80) + sound, 20}, Case{"no sound", header(0), 0},
          Case{"another chunk first",
               header(0).substr(0, 36) + "LIST" + number(4, 4) + "abcd" + "data" + number(400, 4) + sound, 100}}) {
        EXPECT_EQ(load(write(at.file)), ramp(at.frames)) << at.name;
    }
}

TEST_F(WaveFiles, WhatHoldsNoSoundIsAnErrorWithAText) {
    const Bytes sound = bytesOf(ramp(100));
    for (const Bytes& file : {Bytes(), Bytes("RIFF"), header(400).substr(0, 30), header(400, 0) + sound, sound + sound,
                              Bytes(header(400) + sound).replace(24, 4, number(7, 4))}) {
        try {
            load(write(file));
            ADD_FAILURE() << file.size();
        } catch (const RuntimeError& error) {
            EXPECT_THAT(error.description(), testing::HasSubstr("track.wav")) << file.size();
        }
    }
    EXPECT_THROW(load(folder), RuntimeError);
    EXPECT_THROW(load(folder / "missing.wav"), RuntimeError);
}

TEST_F(WaveFiles, OtherFormatsAreConvertedToTheOneFormat) {
    struct Case {
        int format;
        int channels;
        int rate;
        int tolerance;
    };
    constexpr double pitch = 1000;
    for (const Case& at : {Case{SF_FORMAT_WAV | SF_FORMAT_PCM_U8, 2, 44100, 260},
                           {SF_FORMAT_WAV | SF_FORMAT_PCM_24, 1, 44100, 1},
                           {SF_FORMAT_WAV | SF_FORMAT_PCM_32, 6, 44100, 1},
                           {SF_FORMAT_WAV | SF_FORMAT_FLOAT, 2, 96000, 8},
                           {SF_FORMAT_AIFF | SF_FORMAT_PCM_16, 1, 22050, 8},
                           {SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 2, 48000, 8}}) {
        std::vector<float> samples;
        for (int i = 0; i < at.rate / 2; ++i) {
            const double sample = 0.5 * std::sin(2 * std::numbers::pi * pitch * i / at.rate);
            samples.insert(samples.end(), static_cast<std::size_t>(at.channels), static_cast<float>(sample));
        }
        const bool holdsAnything = (at.format & SF_FORMAT_SUBMASK) == SF_FORMAT_FLOAT;
        if (holdsAnything) samples[9600] = std::nanf("");  // where the tone is at zero
        SF_INFO information{0, at.rate, at.channels, at.format, 0, 0};
        const auto path = folder / "foreign";
        SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &information);
        sf_write_float(file, samples.data(), std::ssize(samples));
        sf_close(file);

        const Sound sound = load(path);
        ASSERT_NEAR(static_cast<double>(sound.size()), framesPerSecond / 2, 2) << at.format;
        for (std::size_t i = 1000; i < 21000; ++i) {
            const double expected =
                16384 * std::sin(2 * std::numbers::pi * pitch * static_cast<double>(i) / framesPerSecond);
            ASSERT_NEAR(sound[i].left, expected, at.tolerance) << at.format << ' ' << i;
            ASSERT_EQ(sound[i].left, sound[i].right);
        }
    }
}

TEST_F(WaveFiles, AFileCutShortWhileItIsMappedReadsAsSilence) {
    const auto path = write(header(400000) + bytesOf(ramp(100000)));
    const auto data = readWaveFile(path);
    std::filesystem::resize_file(path, 44 + 8192);
    EXPECT_EQ(data->frames()[1000], ramp(1001).back());
    EXPECT_EQ(data->frames()[90000], StereoFrame{});
}

/// Ends the process by force in the middle of the sound, or when all is written but not yet in place.
class PowerCut final : public DiskCalls {
  public:
    explicit PowerCut(bool whileWriting) : whileWriting_(whileWriting) {}
    ssize_t write(int file, std::span<const std::byte> bytes) override {
        if (!whileWriting_ || bytes.size() == headerBytes) return DiskCalls::write(file, bytes);
        DiskCalls::write(file, bytes.first(bytes.size() / 2));
        return ::raise(SIGKILL);
    }
    int rename(const char*, const char*) override { return ::raise(SIGKILL); }

  private:
    bool whileWriting_;
};

TEST_F(WaveFiles, ASaveThatIsKilledLeavesTheOldTakeWhole) {
    const Bytes old = header(400) + bytesOf(ramp(100));
    const auto path = write(old);
    for (const bool whileWriting : {true, false}) {
        const pid_t child = fork();
        if (child == 0) {
            PowerCut cut(whileWriting);
            ReplacingFile::setDiskCalls(&cut);
            writeWaveFile(path, ramp(50000));
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status)) << whileWriting;
        EXPECT_EQ(read(path), old) << whileWriting;
    }
}

}  // namespace
}  // namespace lyrebrook
