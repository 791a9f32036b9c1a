#pragma once

#include <cmath>

namespace lyrebrook {

/// A length on a screen: 1440 to the inch, 15 to a logical pixel. Fractions are kept: a bar's width is computed.
using Twips = double;

inline constexpr Twips twipsPerPixel = 15;

inline int toPixels(Twips length) {
    return static_cast<int>(std::lround(length / twipsPerPixel));
}
constexpr Twips toTwips(int pixels) {
    return pixels * twipsPerPixel;
}

}  // namespace lyrebrook
