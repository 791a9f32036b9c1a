#pragma once

#include <atomic>
#include <cstdint>

#include "platform/sound/SoundFormat.h"

namespace lyrebrook {

/// How a unit stands after the order with this ticket.
struct UnitState {
    std::uint32_t ticket = 0;
    bool running = false;
    Frames position = 0;
};

/// A unit's state for the program's thread, told by the card's thread in one piece: a position can't be read together
/// with the ticket of another order. Positions fit 31 bits, since buffers are counted in 32-bit bytes.
class PublishedState {
  public:
    void store(const UnitState& state) noexcept {
        packed_.store(std::uint64_t{state.ticket} << 32 | std::uint64_t{state.running} << 31 |
                          static_cast<std::uint64_t>(state.position),
                      std::memory_order_release);
    }

    UnitState load() const noexcept {
        const std::uint64_t packed = packed_.load(std::memory_order_acquire);
        return {.ticket = static_cast<std::uint32_t>(packed >> 32),
                .running = (packed >> 31 & 1) != 0,
                .position = static_cast<Frames>(packed & 0x7FFFFFFF)};
    }

  private:
    std::atomic<std::uint64_t> packed_{0};
    static_assert(std::atomic<std::uint64_t>::is_always_lock_free);
};

}  // namespace lyrebrook
