#pragma once

#include <array>
#include <cstdint>

namespace lyrebrook {

/// What was recorded since the recorder's screen was opened, take by take from 1 on, in bytes of the song. Made for 99
/// takes; the hundredth is a RuntimeError `subscriptOutOfRange`.
class TakeTable {
  public:
    struct Stretch {
        std::int32_t start = 0;
        std::int32_t length = 0;
    };

    std::int32_t takeCount = 0;

    /// The newest take as far as it has come.
    void note(Stretch stretch);
    const Stretch& operator[](std::int32_t take) const { return stretches_[place(take)]; }

  private:
    static std::size_t place(std::int32_t take);

    std::array<Stretch, 100> stretches_{};
};

}  // namespace lyrebrook
