#pragma once

#include <cstdint>

#include "platform/sound/cards/pulse/CardTime.h"
#include "platform/sound/cards/pulse/PulseHandles.h"

namespace lyrebrook {

/// The connection to the sound server: made, given up when the server doesn't answer, made again when it was lost.
/// Belongs to the thread that turns the loop.
class PulseServer {
  public:
    explicit PulseServer(pa_mainloop& loop) : loop_(loop) {}
    PulseServer(const PulseServer&) = delete;
    PulseServer& operator=(const PulseServer&) = delete;

    /// Connects when it is time to. True when the connection was lost just now: what was made on it has to go before
    /// the next call.
    bool keepUp(CardMoment now);

    /// Takes the connection down.
    void close();

    /// The connection is there, and its outputs are known.
    bool ready() const { return outputs_ >= 0; }

    /// The attempt that was begun last came to nothing.
    bool failed() const { return failed_; }

    pa_context* context() const { return context_.get(); }

    /// Outputs that can be heard.
    std::int32_t outputs() const { return outputs_ < 0 ? 0 : outputs_; }

  private:
    void connect(CardMoment now);
    void contextChanged();
    void countOutputs();
    void noteOutput(const pa_sink_info& sink);

    pa_mainloop& loop_;
    PulseHandle<pa_context> context_;
    CardMoment begun_;
    bool failed_ = false;
    std::int32_t counted_ = 0;
    std::int32_t outputs_ = -1;
};

}  // namespace lyrebrook
