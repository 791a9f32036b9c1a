#pragma once

#include <QColor>
#include <cstdint>

namespace lyrebrook {

/// A colour as the screens count it: blue, green and red from the high byte down, so 255 is red. With the high bit set
/// it is a system colour, which the theme answers.
using Colour = std::uint32_t;

inline constexpr Colour black = 0x000000;
inline constexpr Colour red = 0x0000FF;
inline constexpr Colour green = 0x00FF00;
inline constexpr Colour yellow = 0x00FFFF;
inline constexpr Colour cyan = 0xFFFF00;
inline constexpr Colour lightRed = 0x8080FF;
inline constexpr Colour buttonFace = 0x8000000F;
inline constexpr Colour inactiveBorder = 0x8000000B;
inline constexpr Colour windowBackground = 0x80000005;
inline constexpr Colour windowText = 0x80000008;
inline constexpr Colour buttonText = 0x80000012;

constexpr bool isSystemColour(Colour colour) {
    return (colour & 0x80000000) != 0;
}

/// The colour to paint with; a system colour becomes the theme's own.
QColor toQColor(Colour colour);

}  // namespace lyrebrook
