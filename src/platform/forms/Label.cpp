#include "platform/forms/Label.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <utility>

namespace lyrebrook {
namespace {

bool isLeftButton(const QEvent& event) {
    return static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
}

bool isClickKey(const QEvent& event) {
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

}  // namespace

Label::Label(QWidget* container, const QString& caption) : Control(new QLabel(caption, container)) {
    as<QLabel>().setTextFormat(Qt::PlainText);
}

QString Label::Caption() const {
    return as<QLabel>().text();
}

void Label::setCaption(const QString& caption) {
    as<QLabel>().setText(caption);
}

void Label::setAlignment(Qt::Alignment alignment) {
    as<QLabel>().setAlignment(alignment);
}

void Label::setWordWrap(bool wrap) {
    as<QLabel>().setWordWrap(wrap);
}

void Label::makeLink() {
    link_ = true;
    widget()->setCursor(Qt::PointingHandCursor);
    widget()->setFocusPolicy(Qt::StrongFocus);
    widget()->setProperty("link", true);
    repolish();
}

bool Label::filter(QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
            pressed_ = isLeftButton(event);
            return false;
        case QEvent::MouseButtonDblClick:
            if (isLeftButton(event)) DblClick.fire();
            return false;
        case QEvent::MouseButtonRelease:
            if (std::exchange(pressed_, false) &&
                widget()->rect().contains(static_cast<const QMouseEvent&>(event).position().toPoint()))
                Click.fire();
            return false;
        case QEvent::KeyPress:
            if (!link_ || !isClickKey(event)) return false;
            Click.fire();
            return true;
        default:
            return false;
    }
}

}  // namespace lyrebrook
