#include "platform/sound/SoundFileConversion.h"

#include <samplerate.h>
#include <sndfile.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <new>
#include <span>
#include <string>
#include <vector>

#include "platform/base/RuntimeError.h"
#include "platform/sound/mixing.h"

namespace lyrebrook {
namespace {

constexpr std::size_t blockFrames = 4096;

struct CloseSoundFile {
    void operator()(SNDFILE* file) const noexcept { sf_close(file); }
};
struct DeleteConverter {
    void operator()(SRC_STATE* converter) const noexcept { src_delete(converter); }
};

[[noreturn]] void refuse(const std::filesystem::path& path, const std::string& reason) {
    throw RuntimeError(RuntimeErrorNumber::pathFileAccess,
                       path.filename().string() + " can't be read as sound: " + reason);
}

/// A sound file read as stereo floats, block by block.
class StereoReader {
  public:
    explicit StereoReader(const std::filesystem::path& path) : file_(sf_open(path.c_str(), SFM_READ, &information_)) {
        if (file_ == nullptr) refuse(path, sf_strerror(nullptr));
        if (information_.channels < 1 || information_.samplerate < 1) refuse(path, "it has no channels or no rate.");
        channels_ = static_cast<std::size_t>(information_.channels);
        raw_.resize(blockFrames * channels_);
    }

    int rate() const { return information_.samplerate; }

    /// The next samples, interleaved; empty at the end. Valid until the next call.
    std::span<const float> read() {
        const sf_count_t read = sf_readf_float(file_.get(), raw_.data(), static_cast<sf_count_t>(blockFrames));
        const auto frames = static_cast<std::size_t>(std::max<sf_count_t>(read, 0));
        for (std::size_t i = 0; i < frames; ++i) {
            stereo_[2 * i] = finite(raw_[i * channels_]);
            stereo_[2 * i + 1] = finite(raw_[i * channels_ + (channels_ > 1 ? 1 : 0)]);
        }
        return std::span{stereo_}.first(2 * frames);
    }

  private:
    static float finite(float sample) { return std::isfinite(sample) ? sample : 0; }

    SF_INFO information_{};
    std::unique_ptr<SNDFILE, CloseSoundFile> file_;
    std::size_t channels_ = 0;
    std::vector<float> raw_;
    std::array<float, 2 * blockFrames> stereo_{};
};

/// What has been converted so far.
class Result {
  public:
    void append(std::span<const float> samples) {
        const std::size_t before = frames_.size();
        if (before + samples.size() / 2 > static_cast<std::size_t>(longestBuffer)) {
            throw RuntimeError(RuntimeErrorNumber::overflow, "Overflow");
        }
        frames_.resize(before + samples.size() / 2);
        toFrames(samples, std::span{frames_}.subspan(before));
    }

    SoundMemory take() const {
        SoundMemory memory(static_cast<Frames>(frames_.size()));
        std::ranges::copy(frames_, memory.frames().begin());
        return memory;
    }

  private:
    std::vector<StereoFrame> frames_;
};

/// Brings a file's rate to that of the one format.
class RateConverter {
  public:
    explicit RateConverter(double ratio) : ratio_(ratio) {
        int error = 0;
        converter_.reset(src_new(SRC_SINC_MEDIUM_QUALITY, 2, &error));
        if (converter_ == nullptr) throw std::bad_alloc();
    }

    void convert(StereoReader& reader, Result& result) {
        std::span<const float> input;
        do {
            input = reader.read();
            push(input, result);
        } while (!input.empty());
    }

  private:
    /// An empty input is the end; what the converter still holds then comes out.
    void push(std::span<const float> input, Result& result) {
        SRC_DATA step{};
        step.src_ratio = ratio_;
        step.end_of_input = input.empty() ? 1 : 0;
        step.data_out = output_.data();
        step.output_frames = static_cast<long>(blockFrames);
        do {
            step.data_in = input.data();
            step.input_frames = static_cast<long>(input.size() / 2);
            if (src_process(converter_.get(), &step) != 0) return;
            result.append(std::span{output_}.first(static_cast<std::size_t>(2 * step.output_frames_gen)));
            input = input.subspan(static_cast<std::size_t>(2 * step.input_frames_used));
        } while (!input.empty() || step.output_frames_gen == step.output_frames);
    }

    double ratio_;
    std::unique_ptr<SRC_STATE, DeleteConverter> converter_;
    std::array<float, 2 * blockFrames> output_{};
};

void copy(StereoReader& reader, Result& result) {
    for (auto samples = reader.read(); !samples.empty(); samples = reader.read()) result.append(samples);
}

}  // namespace

SoundMemory convertSoundFile(const std::filesystem::path& path) try {
    const auto reader = std::make_unique<StereoReader>(path);
    Result result;
    const double ratio = static_cast<double>(framesPerSecond) / reader->rate();
    if (src_is_valid_ratio(ratio) == 0) refuse(path, "its rate is out of range.");
    if (reader->rate() == framesPerSecond) {
        copy(*reader, result);
    } else {
        std::make_unique<RateConverter>(ratio)->convert(*reader, result);
    }
    return result.take();
} catch (const std::bad_alloc&) {
    throw RuntimeError(RuntimeErrorNumber::outOfMemory, "Out of memory");
}

}  // namespace lyrebrook
