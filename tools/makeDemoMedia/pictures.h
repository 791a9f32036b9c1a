#pragma once

#include <QImage>

namespace lyrebrook {

/// The pictures of the example site, drawn, not photographed. Each is the same every time.
inline constexpr int pictureWidth = 1200;
inline constexpr int pictureHeight = 800;

QImage paintMicrophone();  // in the studio, before a glowing lamp
QImage paintHarbour();     // hills, boat and water at dusk
QImage paintStage();       // a guitar on its stand under two lights

}  // namespace lyrebrook
