#pragma once

#include <cstdint>

#include "platform/sound/cards/pulse/PulseHandles.h"
#include "platform/sound/cards/pulse/StreamPosition.h"
#include "platform/sound/cards/pulse/TimelineMixer.h"
#include "platform/sound/cards/pulse/streamSupport.h"

namespace lyrebrook {

/// The playing side: a stream to the server that pulls the timeline, or, while there is none, the clock that does. The
/// stream never stops for want of sound, so a frame that comes too late is lost and the rest keeps its place. Belongs
/// to the card's thread.
class PulseOutput {
  public:
    explicit PulseOutput(TimelineMixer& mixer) : mixer_(mixer) {}
    PulseOutput(const PulseOutput&) = delete;
    PulseOutput& operator=(const PulseOutput&) = delete;

    /// The timeline begins to run.
    void begin(CardMoment now);

    /// Opens the stream when it is time to, and lets the timeline go on. `server` is null while there is none.
    void keepUp(pa_context* server, CardMoment now);

    /// Lets go of the stream; the timeline goes on by the clock.
    void close();

    /// A stream is there and takes sound.
    bool streaming() const { return streaming_; }

    /// A stream was made of late and has not been heard yet.
    bool wakingUp(CardMoment now) const;

    /// The place of the timeline that sounds at that moment.
    double soundingAt(CardMoment moment) const { return sounding_.at(moment); }

    /// Has the server tell anew what sounds.
    void askTiming();

    /// The same as `soundingAt`, but from what the server told last, if that is no older than a moment. Servers move
    /// sound in rounds and tell how it stood at the last; a record stream asked together with this one stood at the
    /// same.
    double soundingAtLastRound(CardMoment moment) const;

    /// The sink that the stream plays on; PA_INVALID_INDEX while there is none.
    std::uint32_t sink() const;

    std::uint32_t underruns() const { return underruns_; }

  private:
    void open(pa_context& server, CardMoment now);
    void watch();
    void takeRequest(std::size_t bytes);
    std::size_t write(std::size_t frames, Frames gap);
    bool hasBegun() const { return written_ > framesPerSecond / 2; }
    void standStill(CardMoment now);
    std::size_t startStream(std::size_t requested, CardMoment now);
    Frames bufferFrames() const { return wholeFrames(bufferBytes(length_)); }
    void goOnByTheClock(CardMoment now);
    void takeTiming();
    void takeUnderrun();

    TimelineMixer& mixer_;
    PulseHandle<pa_stream> stream_;
    StreamSight told_;
    StreamPosition sounding_;
    StreamSight byTheClock_;  // where the timeline stood when the server last began to ask for sound
    bool streaming_ = false;
    bool leftBehind_ = false;
    Frames written_ = 0;  // frames of the stream, those skipped too
    Frames gapDue_ = 0;   // to be skipped before the next frame
    Frames base_ = 0;     // place on the timeline of the stream's first frame
    CardMoment tried_;
    CardMoment started_;
    CardMoment requested_;
    CardMoment lastUnderrun_;
    std::uint32_t underruns_ = 0;
    std::chrono::milliseconds length_{20};
};

}  // namespace lyrebrook
