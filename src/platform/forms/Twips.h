#pragma once

#include <cmath>

#include "platform/base/Twips.h"

namespace lyrebrook {

/// Logical pixels, 96 to the inch, whatever the screen's scale.
inline constexpr Twips twipsPerPixel = 15;

inline int toPixels(Twips length) {
    return static_cast<int>(std::lround(length / twipsPerPixel));
}
constexpr Twips toTwips(int pixels) {
    return pixels * twipsPerPixel;
}

}  // namespace lyrebrook
