#pragma once

#include <stop_token>

#include "platform/sound/SoundCard.h"
#include "platform/sound/cards/CardNotice.h"
#include "platform/sound/cards/pulse/PulseHandles.h"
#include "platform/sound/cards/pulse/PulseInput.h"
#include "platform/sound/cards/pulse/PulseOutput.h"
#include "platform/sound/cards/pulse/PulseServer.h"
#include "platform/sound/cards/pulse/TimelineMixer.h"

namespace lyrebrook {

struct CardShare;

/// All that the card's thread does: turns the server's loop, keeps connection and streams up, lets the timeline go on,
/// and tells how things stand. `wake` may be called from any thread; the rest belongs to one thread at a time, the
/// program's up to `begin` and after `run`, the card's in between.
class CardLoop {
  public:
    explicit CardLoop(CardShare& share);

    bool reachServer(std::chrono::milliseconds limit);
    void begin(SoundCardClient& client);
    void run(const std::stop_token& stopping);

    /// Lets go of the server.
    void end();

    void wake() { pa_mainloop_wakeup(loop_.get()); }

  private:
    void turn(std::chrono::milliseconds longestWait);
    void keepUp(CardMoment now);
    void takeOrders(CardMoment now);
    bool inputWanted(CardMoment now) const;
    void tellSounded(CardMoment now);
    void report(CardMoment now);
    CardNotice currentNotice(CardMoment now) const;

    CardShare& share_;
    SoundCardClient* client_ = nullptr;
    PulseHandle<pa_mainloop> loop_;
    TimelineMixer mixer_;
    PulseServer server_;
    PulseOutput output_;
    PulseInput input_;
    RecordingSource::Kind kind_ = RecordingSource::Kind::cardOutput;
    Frames sounded_ = 0;
    bool wanted_ = false;
    CardMoment wantedSince_;
    CardMoment lastWanted_;
    CardMoment lastHeard_;
    CardMoment lastArrived_;
};

}  // namespace lyrebrook
