#pragma once

#include "platform/sound/EngineUnit.h"

namespace lyrebrook {

/// The units in the order in which they were attached. Linked through the units themselves, so that the card's thread
/// adds and removes without memory of its own. Owns nothing.
class EngineUnitList {
  public:
    void add(EngineUnit& unit) noexcept;
    void remove(EngineUnit& unit) noexcept;

    template <class Function>
    void forEach(Function function) const noexcept {
        for (EngineUnit* unit = first_; unit != nullptr; unit = unit->next_) function(*unit);
    }

  private:
    EngineUnit* first_ = nullptr;
};

}  // namespace lyrebrook
