#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <thread>

#include "platform/sound/SoundCard.h"
#include "platform/sound/cards/pulse/RecordingSource.h"

namespace lyrebrook {

struct CardShare;
class CardLoop;
class MixerConnection;

/// The user's own sound card, through a server that speaks PulseAudio's protocol. A thread of the card's own does all
/// that has to do with the server; the entries here only leave word for it and read what it told. When the server or a
/// device goes away the timeline goes on by the clock, the input has a hole, and both are taken back when they return.
/// A recording is never moved to another source.
class PulseCard final : public SoundCard {
  public:
    PulseCard();
    ~PulseCard() override;

    /// Before `start`: tries to reach the server, in the caller's thread. False when there is none, or none that
    /// answers within the limit.
    bool reachServer(std::chrono::milliseconds limit);

    void start(SoundCardClient& client) override;
    void stop() override;
    void openInput() override;
    void closeInput() override;
    void holdSource() override;
    void releaseSource() override;
    std::int32_t outputCount() const override;
    std::shared_ptr<MixerBackend> mixer() override;

    /// What is recorded from now on; the card's output unless told otherwise.
    void selectSource(const RecordingSource& source);

    CardNotice notice() const override;

    /// Times that the server had nothing to play because sound came too late.
    std::uint32_t underruns() const;

    /// Frames that the input lost while it was open.
    Frames lostInput() const;

  private:
    std::shared_ptr<CardShare> share_;
    std::weak_ptr<MixerConnection> mixerConnection_;
    std::unique_ptr<CardLoop> loop_;
    std::jthread thread_;
};

}  // namespace lyrebrook
