#pragma once

#include <QString>
#include <chrono>
#include <cstdint>
#include <optional>

#include "platform/sound/SoundFormat.h"
#include "platform/sound/cards/CardNotice.h"

namespace lyrebrook {

class DirectSoundCaptureBuffer8;

/// The line in which a recording screen tells that the card or the recording source went away, that it is back,
/// that a recording lost a piece, and that it gets nothing but silence. It only tells; what is recorded goes on.
/// Program's thread.
class SoundNotice {
  public:
    using Moment = std::chrono::milliseconds;

    /// To be called at each tick. `recording` is the capture of a recording that runs, or null.
    void look(CardNotice card, const DirectSoundCaptureBuffer8* recording, Moment now);

    /// Empty when there is nothing to tell.
    QString text(Moment now) const;

  private:
    void seeCard(CardNotice card, Moment now);
    void listen(const DirectSoundCaptureBuffer8* recording);
    void seeLosses(const DirectSoundCaptureBuffer8* recording, Moment now);
    bool tellsOfCard(Moment now) const;

    CardNotice card_ = CardNotice::none;
    QString back_;
    Moment backSince_{0};
    std::int32_t heardUpTo_ = 0;    // bytes
    std::int32_t silentBytes_ = 0;  // up to there
    Frames missed_ = 0;
    std::optional<Moment> missedSince_;
};

}  // namespace lyrebrook
