#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <thread>

#include "platform/sound/EngineUnit.h"
#include "platform/sound/SoundCard.h"
#include "platform/sound/cards/CaptureDelay.h"
#include "platform/sound/cards/InputFeeds.h"

namespace lyrebrook {

/// A line of the virtual card that has a level and a mute in what is heard.
enum class CardLine : std::uint8_t { master, wave, softwareSynth, cd, lineIn, microphone, aux };
inline constexpr std::size_t cardLineCount = 7;

/// What the virtual card can record, each with a level of its own.
enum class RecordingLine : std::uint8_t { stereoMix, microphone, lineIn, cd, wave, aux };
inline constexpr std::size_t recordingLineCount = 6;

/// Both sides of a line's level, 0 to 65535, which is unchanged loudness; in between it is proportional.
struct LineLevel {
    std::uint16_t left = 65535;
    std::uint16_t right = 65535;

    friend bool operator==(const LineLevel&, const LineLevel&) = default;
};

/// The sound card that is always there: lines with levels and mutes that act on what is heard and recorded, inputs that
/// can be fed, and no loudspeaker. Its clock is the real one on a thread of the card's own, or a hand crank, `advance`,
/// which is the card's thread for the length of the call. Levels may be set at any time from the program's thread; the
/// hooks and faults for tests say when. Captured sound is what the card plays, or an input before its level and mute.
class VirtualCard final : public SoundCard {
  public:
    enum class Clock { realTime, handCrank };

    /// What leaves the speakers, with its place on the timeline; called on the card's thread.
    using Listener = std::function<void(Frames first, std::span<const StereoFrame> frames)>;

    explicit VirtualCard(Clock clock, Frames captureLatency = 0);
    ~VirtualCard() override;

    void start(SoundCardClient& client) override;
    void stop() override;
    void openInput() override { inputOpen_.store(true); }
    void closeInput() override { inputOpen_.store(false); }
    std::int32_t outputCount() const override { return outputCount_; }
    bool inputOpen() const { return inputOpen_.load(); }

    /// Outputs to report; none unless told otherwise.
    void setOutputCount(std::int32_t count) { outputCount_ = count; }

    void setLevel(CardLine line, LineLevel level);
    LineLevel level(CardLine line) const;
    void setMuted(CardLine line, bool muted);
    bool muted(CardLine line) const;
    void selectRecording(RecordingLine line);
    RecordingLine selectedRecording() const;
    void setRecordingLevel(RecordingLine line, LineLevel level);
    LineLevel recordingLevel(RecordingLine line) const;

    /// Turns the hand crank: mixes and captures that many frames, in the caller's thread.
    void advance(Frames frames);

    /// Sound at an input (cd, lineIn, microphone, aux), from the next frame on or after what was fed before.
    void feed(CardLine input, std::span<const StereoFrame> frames);

    /// The input delivers nothing for the next frames.
    void loseInput(Frames frames);

    /// Before `start` only.
    void listen(Listener listener) { listener_ = std::move(listener); }

  private:
    /// Left in the upper half, right in the lower.
    static constexpr std::uint32_t fullLevel = 0xFFFFFFFF;
    struct LineControl {
        std::atomic<std::uint32_t> level{fullLevel};
        std::atomic<bool> muted{false};
    };
    struct Block;

    void keepTime(const std::stop_token& stopping);
    void step(std::size_t frames);
    void play(std::size_t frames) noexcept;
    void addInputs(std::span<float> mix) noexcept;
    void record(std::size_t frames) noexcept;
    std::span<const float> recorded(std::size_t frames) const noexcept;
    std::size_t framesLost(std::size_t frames) noexcept;
    StereoGain gainOf(CardLine line) const noexcept;

    Clock clock_;
    SoundCardClient* client_ = nullptr;
    std::int32_t outputCount_ = 0;
    Listener listener_;
    std::array<LineControl, cardLineCount> lines_;
    std::array<std::atomic<std::uint32_t>, recordingLineCount> recordingLevels_;
    std::atomic<RecordingLine> selected_{RecordingLine::stereoMix};
    std::atomic<bool> inputOpen_{false};
    std::atomic<Frames> framesToLose_{0};
    InputFeeds feeds_;
    CaptureDelay delay_;
    std::unique_ptr<Block> block_;
    std::jthread thread_;
};

}  // namespace lyrebrook
