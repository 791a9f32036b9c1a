#pragma once

#include <QColor>

class QApplication;

namespace lyrebrook {

/// Dresses the whole program: style, palette, font and the one style sheet. Once, before the first window.
void applyTheme(QApplication& application);

/// Colours of the theme for what is painted by hand.
namespace theme {
inline constexpr QColor panel{0x26, 0x28, 0x2c};
inline constexpr QColor well{0x17, 0x18, 0x1b};
inline constexpr QColor text{0xe8, 0xe6, 0xe1};
inline constexpr QColor quietText{0x9c, 0x9a, 0x94};
inline constexpr QColor accent{0xf0, 0xa0, 0x3c};
inline constexpr QColor button{0x3a, 0x3d, 0x43};
inline constexpr QColor lightDone{0x5f, 0xd0, 0x7a};
inline constexpr QColor lightOpen{0x4a, 0x4d, 0x54};
}  // namespace theme

}  // namespace lyrebrook
