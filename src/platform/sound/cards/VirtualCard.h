#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <thread>

#include "platform/sound/EngineUnit.h"
#include "platform/sound/SoundCard.h"
#include "platform/sound/cards/CaptureDelay.h"
#include "platform/sound/cards/CardLines.h"
#include "platform/sound/cards/InputFeeds.h"

namespace lyrebrook {

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
    CardNotice notice() const override { return notice_; }
    bool runsByItself() const override { return clock_ == Clock::realTime; }
    bool inputOpen() const { return inputOpen_.load(); }

    /// Outputs to report; none unless told otherwise.
    void setOutputCount(std::int32_t count) { outputCount_ = count; }

    /// Loss to report; the sound goes on regardless.
    void setNotice(CardNotice notice) { notice_ = notice; }

    std::shared_ptr<MixerBackend> mixer() override;

    CardLines& lines() { return *lines_; }
    void setLevel(CardLine line, LineLevel level) { lines_->setLevel(line, level); }
    void setMuted(CardLine line, bool muted) { lines_->setMuted(line, muted); }
    void selectRecording(RecordingLine line) { lines_->selectRecording(line); }
    RecordingLine selectedRecording() const { return lines_->selectedRecording(); }
    void setRecordingLevel(RecordingLine line, LineLevel level) { lines_->setRecordingLevel(line, level); }

    /// Turns the hand crank: mixes and captures that many frames, in the caller's thread.
    void advance(Frames frames);

    /// Sound at an input (cd, lineIn, microphone, aux), from the next frame on or after what was fed before.
    void feed(CardLine input, std::span<const StereoFrame> frames);

    /// The input delivers nothing for the next frames.
    void loseInput(Frames frames);

    /// Before `start` only.
    void listen(Listener listener) { listener_ = std::move(listener); }

  private:
    struct Block;

    void keepTime(const std::stop_token& stopping);
    void step(std::size_t frames);
    void play(std::size_t frames) noexcept;
    void addInputs(std::span<float> mix) noexcept;
    void record(std::size_t frames) noexcept;
    std::span<const float> recorded(std::size_t frames) const noexcept;
    std::size_t framesLost(std::size_t frames) noexcept;

    Clock clock_;
    SoundCardClient* client_ = nullptr;
    std::int32_t outputCount_ = 0;
    CardNotice notice_ = CardNotice::none;
    Listener listener_;
    std::shared_ptr<CardLines> lines_ = std::make_shared<CardLines>();
    std::atomic<bool> inputOpen_{false};
    std::atomic<Frames> framesToLose_{0};
    InputFeeds feeds_;
    CaptureDelay delay_;
    std::unique_ptr<Block> block_;
    std::jthread thread_;
};

}  // namespace lyrebrook
