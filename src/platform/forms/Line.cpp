#include "platform/forms/Line.h"

#include <algorithm>

#include "platform/forms/CanvasView.h"

namespace lyrebrook {

Line::Line(QWidget* container, Colour colour, int pixels) : Control(new CanvasView(container)), pixels_(pixels) {
    widget()->setAttribute(Qt::WA_TransparentForMouseEvents);
    setBackColor(colour);
    layOut();
}

void Line::applyColours() {
    as<CanvasView>().setBackground(toQColor(BackColor()));
}

void Line::moveEnd(Twips& coordinate, Twips value) {
    coordinate = value;
    layOut();
}

void Line::layOut() {
    const int left = toPixels(std::min(x1_, x2_));
    const int top = toPixels(std::min(y1_, y2_));
    const int width = std::max(pixels_, toPixels(std::max(x1_, x2_)) - left);
    const int height = std::max(pixels_, toPixels(std::max(y1_, y2_)) - top);
    widget()->setGeometry(left, top, width, height);
}

}  // namespace lyrebrook
