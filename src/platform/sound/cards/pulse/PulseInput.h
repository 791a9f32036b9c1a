#pragma once

#include <cstdint>
#include <string>

#include "platform/sound/cards/pulse/CaptureClock.h"
#include "platform/sound/cards/pulse/PulseHandles.h"
#include "platform/sound/cards/pulse/PulseOutput.h"
#include "platform/sound/cards/pulse/RecentMedian.h"
#include "platform/sound/cards/pulse/RecordingSource.h"

namespace lyrebrook {

/// The recording side: a stream from the chosen source, and from no other. While that source is away the input has a
/// hole; it is taken up again when the source is back. Belongs to the card's thread.
class PulseInput {
  public:
    explicit PulseInput(PulseOutput& output) : output_(output) {}
    PulseInput(const PulseInput&) = delete;
    PulseInput& operator=(const PulseInput&) = delete;

    void select(const RecordingSource& source);

    /// Opens and closes the stream as it is wanted, and delivers what has arrived.
    void keepUp(pa_context& server, bool wanted, CardMoment now, SoundCardClient& client);

    void close();

    /// Sound has arrived of late.
    bool arriving(CardMoment now) const;

    Frames lost() const { return clock_.lost(); }

  private:
    void findMonitor(pa_context& server);
    const std::string& target() const { return source_.kind == RecordingSource::Kind::named ? source_.name : monitor_; }
    void open(pa_context& server, CardMoment now);
    bool stillGood(CardMoment now) const;
    void measureAnew();
    void takeFrames();
    void askTiming(CardMoment now);
    void takeTiming(pa_stream& stream);

    PulseOutput& output_;
    RecordingSource source_;
    std::uint32_t monitoredSink_ = PA_INVALID_INDEX;
    std::string monitor_;
    std::string opened_;
    PulseHandle<pa_stream> stream_;
    RecentMedian lead_;
    std::int32_t asked_ = 0;
    CardMoment lastAsked_;
    CaptureClock clock_;
    CardMoment tried_;
    CardMoment arrived_;
};

}  // namespace lyrebrook
