#pragma once

#include <memory>

#include "platform/sound/MixerBackend.h"
#include "platform/sound/cards/CardLines.h"

namespace lyrebrook {

/// The mixer of the virtual card: one device with the lines of an AC'97 codec.
class VirtualMixer final : public MixerBackend {
  public:
    explicit VirtualMixer(std::shared_ptr<CardLines> lines);

    std::vector<std::string> deviceNames() override;
    std::unique_ptr<MixerDevice> open(std::int32_t device, MixerListener listener) override;

  private:
    std::shared_ptr<CardLines> lines_;
};

}  // namespace lyrebrook
