#pragma once

#include <QIcon>
#include <QStyle>

namespace lyrebrook {

/// The theme's picture for a message box or a folder, in all the sizes that are asked for; null for anything else.
QIcon themeIcon(QStyle::StandardPixmap icon);

}  // namespace lyrebrook
