#include "platform/forms/PictureBox.h"

#include <QMouseEvent>
#include <utility>

#include "platform/forms/CanvasView.h"

namespace lyrebrook {
namespace {

MouseButton toButton(Qt::MouseButtons buttons) {
    if (buttons & Qt::LeftButton) return MouseButton::left;
    if (buttons & Qt::RightButton) return MouseButton::right;
    if (buttons & Qt::MiddleButton) return MouseButton::middle;
    return MouseButton::none;
}

int toShift(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? 1 : 0) + (modifiers & Qt::ControlModifier ? 2 : 0) +
           (modifiers & Qt::AltModifier ? 4 : 0);
}

}  // namespace

PictureBox::PictureBox(QWidget* container) : Control(new CanvasView(container)) {}

CanvasView& PictureBox::canvas() const {
    return as<CanvasView>();
}

void PictureBox::setPainting(std::function<void(QPainter&, const QRectF& area)> painting) {
    canvas().setPainting(std::move(painting));
}

void PictureBox::setBorder(bool border) {
    canvas().setBorder(border);
}

double PictureBox::ScaleWidth() const {
    return Width() / (twipsPerPixel / unit());
}

double PictureBox::ScaleHeight() const {
    return Height() / (twipsPerPixel / unit());
}

void PictureBox::setScaleMode(ScaleMode mode) {
    scaleMode_ = mode;
}

void PictureBox::DrawLine(const QLineF& line, Colour colour) {
    canvas().drawLine(QLineF(line.p1() / unit(), line.p2() / unit()), 1 / unit(), toQColor(colour));
}

void PictureBox::applyColours() {
    canvas().setBackground(BackColor() == buttonFace ? QColor() : toQColor(BackColor()));
}

bool PictureBox::filter(QEvent& event) {
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    switch (event.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            pressed_ = mouse.button() == Qt::LeftButton;
            tell(MouseDown, mouse, mouse.button());
            return true;
        case QEvent::MouseMove:
            tell(MouseMove, mouse, mouse.buttons());
            return true;
        case QEvent::MouseButtonRelease:
            tell(MouseUp, mouse, mouse.button());
            if (std::exchange(pressed_, false) && widget()->rect().contains(mouse.position().toPoint())) Click.fire();
            return true;
        default:
            return false;
    }
}

void PictureBox::tell(const MouseEvent& told, const QMouseEvent& mouse, Qt::MouseButtons buttons) {
    told.fire(toButton(buttons), toShift(mouse.modifiers()), mouse.position().x() * twipsPerPixel,
              mouse.position().y() * twipsPerPixel);
}

}  // namespace lyrebrook
