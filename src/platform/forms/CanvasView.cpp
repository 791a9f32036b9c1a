#include "platform/forms/CanvasView.h"

#include <QPainter>
#include <algorithm>

#include "platform/forms/Theme.h"

namespace lyrebrook {

CanvasView::CanvasView(QWidget* container) : QWidget(container) {
    setMouseTracking(true);
}

void CanvasView::setBackground(const QColor& colour) {
    background_ = colour;
    // What lies below needn't be painted then, when this moves or changes.
    setAttribute(Qt::WA_OpaquePaintEvent, colour.isValid() && colour.alpha() == 255);
    update();
}

void CanvasView::setPainting(std::function<void(QPainter&, const QRectF&)> painting) {
    painting_ = std::move(painting);
    update();
}

void CanvasView::setBorder(bool border) {
    border_ = border;
    update();
}

void CanvasView::drawLine(const QLineF& line, double thickness, const QColor& colour) {
    const QSize pixels = size() * devicePixelRatioF();
    if (lines_.size() != pixels) {
        lines_ = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
        lines_.setDevicePixelRatio(devicePixelRatioF());
        lines_.fill(Qt::transparent);
    }
    if (!fillRow(line, thickness, colour)) {
        QPainter painter(&lines_);
        painter.setPen(QPen(colour, thickness));
        painter.drawLine(line);
    }
    update();
}

/// A level column is a line for each of up to thousands of rows, twenty times a second.
bool CanvasView::fillRow(const QLineF& line, double thickness, const QColor& colour) {
    if (line.dy() != 0) return false;
    const double scale = lines_.devicePixelRatio();
    const auto pixel = [scale](double at, int most) { return std::clamp(static_cast<int>(at * scale), 0, most); };
    const int top = pixel(line.y1(), lines_.height());
    const int bottom = std::max(top + 1, pixel(line.y1() + thickness, lines_.height()));
    const int left = pixel(std::min(line.x1(), line.x2()), lines_.width());
    const int right = pixel(std::max(line.x1(), line.x2()), lines_.width());
    for (int y = top; y < std::min(bottom, lines_.height()); ++y) {
        auto* row = reinterpret_cast<QRgb*>(lines_.scanLine(y));
        std::fill(row + left, row + right, colour.rgb());
    }
    return true;
}

void CanvasView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (background_.isValid()) painter.fillRect(rect(), background_);  // whole pixels, at any scale
    painter.setRenderHints(QPainter::Antialiasing);
    if (painting_) {
        painter.save();
        painting_(painter, rect());
        painter.restore();
    }
    if (lines_.deviceIndependentSize().toSize() == size()) painter.drawImage(0, 0, lines_);
    if (!border_) return;
    painter.setPen(theme::edge);
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace lyrebrook
