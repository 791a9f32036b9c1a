#pragma once

#include <map>
#include <vector>

#include "platform/sound/MixerBackend.h"

namespace lyrebrook {

/// What the controls of an open mixer were last known to stand at, so that a look at all of them tells which have
/// changed.
class MixerMemory {
  public:
    /// The controls at which `device` no longer stands as it did.
    std::vector<MixerControlPlace> look(const MixerDevice& device);

  private:
    std::map<MixerControlPlace, std::optional<std::vector<std::int32_t>>> known_;
};

}  // namespace lyrebrook
