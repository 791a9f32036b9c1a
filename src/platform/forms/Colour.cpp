#include "platform/forms/Colour.h"

#include "platform/forms/Theme.h"

namespace lyrebrook {

QColor toQColor(Colour colour) {
    switch (colour) {
        case buttonFace:
            return theme::button;
        case inactiveBorder:
            return theme::panel;
        case windowBackground:
            return theme::well;
        default:
            break;
    }
    if (isSystemColour(colour)) return theme::text;
    constexpr Colour lowByte = 0xFF;
    return QColor(static_cast<int>(colour & lowByte), static_cast<int>(colour >> 8 & lowByte),
                  static_cast<int>(colour >> 16 & lowByte));
}

}  // namespace lyrebrook
