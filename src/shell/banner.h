#pragma once

class QPainter;
class QRectF;

namespace lyrebrook {

/// Paints the program's name over five strings that sound together.
void paintBanner(QPainter& painter, const QRectF& area);

}  // namespace lyrebrook
