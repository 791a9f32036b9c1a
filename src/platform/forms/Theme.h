#pragma once

#include <QColor>

class QApplication;

namespace lyrebrook {

/// Dresses the whole program: style, palette, font and the one style sheet. Once, before the first window.
void applyTheme(QApplication& application);

/// Colours of the theme, for what is painted by hand; the style sheet has the same.
namespace theme {
inline constexpr QColor window{0x24, 0x25, 0x28};
inline constexpr QColor panel{0x2c, 0x2e, 0x32};
inline constexpr QColor well{0x17, 0x18, 0x1a};
inline constexpr QColor edge{0x4a, 0x4c, 0x52};
inline constexpr QColor button{0x3b, 0x3d, 0x43};
inline constexpr QColor text{0xec, 0xe9, 0xe3};
inline constexpr QColor quietText{0xa8, 0xa5, 0x9e};
inline constexpr QColor disabledText{0x75, 0x74, 0x70};
inline constexpr QColor accent{0xf2, 0xa3, 0x3a};
inline constexpr QColor lightDone{0x5f, 0xd0, 0x7a};
inline constexpr QColor lightOpen{0x6a, 0x3a, 0x34};
inline constexpr QColor information{0x7f, 0xb4, 0xe0};
inline constexpr QColor danger{0xe8, 0x6a, 0x5c};
}  // namespace theme

}  // namespace lyrebrook
