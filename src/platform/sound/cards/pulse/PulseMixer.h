#pragma once

#include <memory>

#include "platform/sound/MixerBackend.h"
#include "platform/sound/cards/CardLines.h"

namespace lyrebrook {

struct CardShare;
class MixerConnection;

/// The mixer of a card of a sound server. A device is a sink: the first is whichever is the default, then the others.
/// Its lines are the sink itself, the program's own two buses, and for recording the server's sources, what the sink
/// plays, and the program's own output untouched. A selection moves the card's capture and the server's default source;
/// a default source that somebody else chose moves the selection, though not away from the program's own output, and
/// not before a recording that runs is over.
class PulseMixer final : public MixerBackend {
  public:
    PulseMixer(std::shared_ptr<MixerConnection> connection, std::shared_ptr<CardLines> buses,
               std::shared_ptr<CardShare> card);

    std::vector<std::string> deviceNames() override;
    std::unique_ptr<MixerDevice> open(std::int32_t device, MixerListener listener) override;

  private:
    std::shared_ptr<MixerConnection> connection_;
    std::shared_ptr<CardLines> buses_;
    std::shared_ptr<CardShare> card_;
};

}  // namespace lyrebrook
