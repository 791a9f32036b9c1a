#pragma once

#include <QIcon>

namespace lyrebrook {

/// Signs of the transport, drawn in all sizes that are asked for.
QIcon recordIcon();
QIcon stopIcon();
QIcon playIcon();

}  // namespace lyrebrook
