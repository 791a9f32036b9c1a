#pragma once

#include <functional>
#include <map>
#include <vector>

#include "platform/sound/MixerBackend.h"

namespace lyrebrook {

using MixerValues = std::optional<std::vector<std::int32_t>>;

/// What the controls of an open mixer were last known to stand at, so that a look at all of them tells which have
/// changed. What can't be read at the moment stands as it did.
class MixerMemory {
  public:
    /// The controls of `layout` at which `read` no longer tells what it did.
    std::vector<MixerControlPlace> look(const MixerLayout& layout,
                                        const std::function<MixerValues(const MixerControlPlace&)>& read);

    MixerValues last(const MixerControlPlace& place) const;

  private:
    std::map<MixerControlPlace, std::vector<std::int32_t>> known_;
};

}  // namespace lyrebrook
