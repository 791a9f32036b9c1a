#include "platform/sound/cards/VirtualCard.h"

#include <algorithm>
#include <chrono>

#include "platform/base/Check.h"
#include "platform/sound/RealTimeScope.h"
#include "platform/sound/cards/VirtualMixer.h"
#include "platform/sound/mixing.h"

namespace lyrebrook {
namespace {

constexpr std::size_t realTimeBlock = framesPerSecond / 100;
constexpr std::chrono::milliseconds realTimeBlockLength{10};

constexpr std::array inputLines{CardLine::cd, CardLine::lineIn, CardLine::microphone, CardLine::aux};
static_assert(inputLines.size() == InputFeeds::inputCount);

std::size_t inputOf(CardLine line) {
    const auto found = std::ranges::find(inputLines, line);
    CHECK(found != inputLines.end());
    return static_cast<std::size_t>(found - inputLines.begin());
}

void scale(std::span<float> samples, StereoGain gain) noexcept {
    for (std::size_t i = 0; i + 1 < samples.size(); i += 2) {
        samples[i] *= gain.left;
        samples[i + 1] *= gain.right;
    }
}

}  // namespace

/// Working memory of one step.
struct VirtualCard::Block {
    using Samples = std::array<float, 2 * mixBlockFrames>;

    Samples wave{};
    Samples softwareSynth{};
    Samples mix{};
    Samples recording{};
    std::array<Samples, InputFeeds::inputCount> inputs{};
    std::array<StereoFrame, mixBlockFrames> played{};
    std::array<StereoFrame, mixBlockFrames> captured{};
};

VirtualCard::VirtualCard(Clock clock, Frames captureLatency)
    : clock_(clock), delay_(captureLatency), block_(std::make_unique<Block>()) {
    // As on every card: a microphone in the loudspeakers howls.
    setMuted(CardLine::microphone, true);
}

VirtualCard::~VirtualCard() {
    stop();
}

void VirtualCard::start(SoundCardClient& client) {
    client_ = &client;
    if (clock_ == Clock::realTime)
        thread_ = std::jthread([this](const std::stop_token& stopping) { keepTime(stopping); });
}

void VirtualCard::stop() {
    thread_ = {};
    client_ = nullptr;
}

std::shared_ptr<MixerBackend> VirtualCard::mixer() {
    return std::make_shared<VirtualMixer>(lines_);
}

void VirtualCard::advance(Frames frames) {
    CHECK(clock_ == Clock::handCrank && client_ != nullptr);
    while (frames > 0) {
        const auto part = std::min<Frames>(frames, mixBlockFrames);
        step(static_cast<std::size_t>(part));
        frames -= part;
    }
}

void VirtualCard::feed(CardLine input, std::span<const StereoFrame> frames) {
    feeds_.feed(inputOf(input), frames);
}

void VirtualCard::loseInput(Frames frames) {
    framesToLose_ += frames;
}

void VirtualCard::keepTime(const std::stop_token& stopping) {
    using Steady = std::chrono::steady_clock;
    for (auto due = Steady::now(); !stopping.stop_requested(); due += realTimeBlockLength) {
        std::this_thread::sleep_until(due);
        // After the machine slept, time goes on from now instead of being made up for in one rush.
        if (Steady::now() - due > std::chrono::seconds(1)) due = Steady::now();
        step(realTimeBlock);
    }
}

void VirtualCard::step(std::size_t frames) {
    const Frames first = client_->mixFrames(
        {std::span{block_->wave}.first(2 * frames), std::span{block_->softwareSynth}.first(2 * frames)});
    play(frames);
    record(frames);
    if (listener_) listener_(first, std::span{block_->played}.first(frames));
    client_->framesSounded(first + static_cast<Frames>(frames));
    delay_.deliver(*client_);
}

void VirtualCard::play(std::size_t frames) noexcept {
    const RealTimeScope scope;
    Block& block = *block_;
    const auto mix = std::span{block.mix}.first(2 * frames);
    const auto wave = std::span{block.wave}.first(2 * frames);
    scale(wave, lines_->gain(CardLine::wave));
    std::ranges::copy(wave, mix.begin());
    const StereoGain synth = lines_->gain(CardLine::softwareSynth);
    addSamples(std::span{block.softwareSynth}.first(2 * frames), {synth, synth}, mix);
    addInputs(mix);
    scale(mix, lines_->gain(CardLine::master));
    toFrames(mix, block.played);
}

void VirtualCard::addInputs(std::span<float> mix) noexcept {
    for (std::size_t i = 0; i < inputLines.size(); ++i) {
        const auto input = std::span{block_->inputs[i]}.first(mix.size());
        feeds_.take(i, input);
        const StereoGain gain = lines_->gain(inputLines[i]);
        addSamples(input, {gain, gain}, mix);
    }
}

void VirtualCard::record(std::size_t frames) noexcept {
    const RealTimeScope scope;
    const auto recording = std::span{block_->recording}.first(2 * frames);
    std::ranges::copy(recorded(frames), recording.begin());
    scale(recording, lines_->recordingGain());
    toFrames(recording, block_->captured);
    const std::size_t lost = inputOpen_ ? framesLost(frames) : frames;
    const auto captured = std::span<const StereoFrame>(block_->captured).first(frames);
    delay_.put(captured.first(lost), true);
    delay_.put(captured.subspan(lost), false);
}

std::span<const float> VirtualCard::recorded(std::size_t frames) const noexcept {
    const auto part = [frames](const Block::Samples& samples) { return std::span{samples}.first(2 * frames); };
    switch (selectedRecording()) {
        case RecordingLine::microphone:
            return part(block_->inputs[inputOf(CardLine::microphone)]);
        case RecordingLine::lineIn:
            return part(block_->inputs[inputOf(CardLine::lineIn)]);
        case RecordingLine::cd:
            return part(block_->inputs[inputOf(CardLine::cd)]);
        case RecordingLine::aux:
            return part(block_->inputs[inputOf(CardLine::aux)]);
        case RecordingLine::wave:
            return part(block_->wave);
        case RecordingLine::stereoMix:
            break;
    }
    return part(block_->mix);
}

/// How many of the next frames fall into a hole of the input.
std::size_t VirtualCard::framesLost(std::size_t frames) noexcept {
    const Frames lost = std::min(framesToLose_.load(), static_cast<Frames>(frames));
    framesToLose_ -= lost;
    return static_cast<std::size_t>(lost);
}

}  // namespace lyrebrook
