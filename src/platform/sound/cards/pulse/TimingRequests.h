#pragma once

#include <pulse/pulseaudio.h>

#include "platform/sound/cards/pulse/CardTime.h"

namespace lyrebrook {

/// Asks a stream's server for its timing, often at first and then now and then. Asking right after the server has
/// moved sound gives the truest answers, because some servers tell how things stood at their last round.
class TimingRequests {
  public:
    void restart() { asked_ = 0; }

    void soundMoved(pa_stream& stream, CardMoment now) {
        const auto pause = asked_ < quick ? quickPause : steadyPause;
        if (asked_ > 0 && now - last_ < pause) return;
        pa_operation* const operation = pa_stream_update_timing_info(&stream, nullptr, nullptr);
        if (operation != nullptr) pa_operation_unref(operation);
        last_ = now;
        ++asked_;
    }

  private:
    static constexpr int quick = 12;
    static constexpr std::chrono::milliseconds quickPause{5};
    static constexpr std::chrono::milliseconds steadyPause{100};

    int asked_ = 0;
    CardMoment last_;
};

}  // namespace lyrebrook
