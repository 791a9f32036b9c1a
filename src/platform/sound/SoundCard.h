#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "platform/sound/SoundFormat.h"
#include "platform/sound/cards/CardNotice.h"

namespace lyrebrook {

class MixerBackend;

/// Where a card has its engine mix to: interleaved stereo, full scale 1.0, both of one length. The buses stay apart
/// up to the card because each has a level of its own there.
struct SoundBuses {
    std::span<float> wave;
    std::span<float> softwareSynth;
};

/// What a card calls. Every entry is called on the card's one thread, is `noexcept`, never blocks, and must not be
/// re-entered. The timeline counts the frames mixed since `start`; it has no gaps: a card that lost its device goes on
/// asking for frames in step with the clock and drops them.
class SoundCardClient {
  public:
    /// Mixes the next frames of the timeline, as many as the buses hold, and returns the index of the first.
    virtual Frames mixFrames(const SoundBuses& buses) noexcept = 0;

    /// Frames in front of this index have left the speakers.
    virtual void framesSounded(Frames upTo) noexcept = 0;

    /// Sound from the input. `soundingAt` is the index of the frame that was sounding when the first of these was
    /// taken. Deliveries join without a gap or an overlap as long as nothing was lost (the card smooths its clock's
    /// jitter); where the input lost frames the index jumps by exactly that many.
    virtual void framesCaptured(Frames soundingAt, std::span<const StereoFrame> frames) noexcept = 0;

  protected:
    ~SoundCardClient() = default;
};

/// A sound card as the engine sees it: it pulls mixed frames and delivers captured ones. All entries are called on the
/// program's thread. A card whose device goes away keeps the timeline going by the clock; none of the entries hangs on
/// a device.
class SoundCard {
  public:
    virtual ~SoundCard() = default;

    /// From here on the client is called. The client outlives the call of `stop`.
    virtual void start(SoundCardClient& client) = 0;

    /// When it returns, no call of the client is running and none comes any more.
    virtual void stop() = 0;

    /// The first capture wants the input, the last no longer does. A card may keep the input open for some seconds
    /// after `closeInput`, since a recording often follows a meter. Between the two, frames are delivered.
    virtual void openInput() = 0;
    virtual void closeInput() = 0;

    /// From here to `releaseSource` a recording runs: only the person at the program changes what it records, and what
    /// other programs choose for recording waits.
    virtual void holdSource() {}
    virtual void releaseSource() {}

    /// Outputs that a person could hear.
    virtual std::int32_t outputCount() const = 0;

    /// The mixer of the card, which may outlive it; null when it has none.
    virtual std::shared_ptr<MixerBackend> mixer() { return nullptr; }

    /// What a person should be told of it at present.
    virtual CardNotice notice() const { return CardNotice::none; }

    /// Time goes on while the program's thread waits.
    virtual bool runsByItself() const { return true; }
};

}  // namespace lyrebrook
