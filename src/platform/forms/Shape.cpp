#include "platform/forms/Shape.h"

#include "platform/forms/CanvasView.h"

namespace lyrebrook {

Shape::Shape(QWidget* container, Colour fill) : Control(new CanvasView(container)) {
    widget()->setAttribute(Qt::WA_TransparentForMouseEvents);
    setFillColor(fill);
}

void Shape::applyColours() {
    as<CanvasView>().setBackground(toQColor(BackColor()));
}

}  // namespace lyrebrook
