#pragma once

#include <ostream>

#include "integration/support/ServerDesk.h"

namespace lyrebrook {

/// One round of a long run: a minute of clicks is played and recorded.
struct SoakRound {
    double behindAtStart = 0;  // milliseconds by which the clicks of the first seconds were recorded late
    double behindAtEnd = 0;    // the same of the last seconds
    long residentKilobytes = 0;
    double ownSeconds = 0;  // processor time since the run began
    double serverSeconds = 0;
};
std::ostream& operator<<(std::ostream& out, const SoakRound& round);

/// Plays and records round after round on one card, as someone does who works for hours.
class Soak {
  public:
    explicit Soak(ServerKind kind);
    SoakRound round();

    Frames lostInput() const { return desk_.card->lostInput(); }
    std::uint32_t underruns() const { return desk_.card->underruns(); }

  private:
    double millisecondsBehind(Frames from) const;

    ServerDesk desk_;
    std::unique_ptr<DirectSoundSecondaryBuffer8> track_;
    std::unique_ptr<DirectSoundCaptureBuffer8> take_;
    Sound recorded_;  // made once, so that what grows is not this
};

}  // namespace lyrebrook
