#pragma once

#if defined(__SSE2__)
#include <xmmintrin.h>
#endif

namespace lyrebrook {

/// Stands at the entry of everything that runs on the card's thread. Numbers too small to hear count as zero inside,
/// so that a fading tail costs no more than a loud one. The depth lets a test catch what is forbidden there.
class RealTimeScope {
  public:
    RealTimeScope() noexcept { ++depth; }
    ~RealTimeScope() {
        --depth;
#if defined(__SSE2__)
        _mm_setcsr(floatingPoint_);
#endif
    }
    RealTimeScope(const RealTimeScope&) = delete;
    RealTimeScope& operator=(const RealTimeScope&) = delete;

    static bool active() noexcept {
        return depth > 0;
    }

  private:
    static inline constinit thread_local int depth = 0;

#if defined(__SSE2__)
    static unsigned flushTinyNumbers() noexcept {
        constexpr unsigned flushToZero = 0x8000;
        constexpr unsigned denormalsAreZero = 0x0040;
        const unsigned before = _mm_getcsr();
        _mm_setcsr(before | flushToZero | denormalsAreZero);
        return before;
    }
    unsigned floatingPoint_ = flushTinyNumbers();
#endif
};

}  // namespace lyrebrook
