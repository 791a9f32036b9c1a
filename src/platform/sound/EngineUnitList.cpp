#include "platform/sound/EngineUnitList.h"

namespace lyrebrook {

void EngineUnitList::add(EngineUnit& unit) noexcept {
    EngineUnit** link = &first_;
    while (*link != nullptr) link = &(*link)->next_;
    *link = &unit;
}

void EngineUnitList::remove(EngineUnit& unit) noexcept {
    for (EngineUnit** link = &first_; *link != nullptr; link = &(*link)->next_) {
        if (*link == &unit) {
            *link = unit.next_;
            unit.next_ = nullptr;
            return;
        }
    }
}

}  // namespace lyrebrook
