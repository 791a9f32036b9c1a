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

Label::Label(QWidget* container, const QString& caption) : Control(new QLabel(caption, container)), caption_(caption) {
    as<QLabel>().setTextFormat(Qt::PlainText);
}

QString Label::Caption() const {
    return caption_;
}

void Label::setCaption(const QString& caption) {
    caption_ = caption;
    showCaption();
}

void Label::setAlignment(Qt::Alignment alignment) {
    as<QLabel>().setAlignment(alignment);
}

void Label::setWordWrap(bool wrap) {
    as<QLabel>().setWordWrap(wrap);
}

void Label::setElided() {
    elided_ = true;
    widget()->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    showCaption();
}

void Label::showCaption() {
    auto& label = as<QLabel>();
    if (!elided_) return label.setText(caption_);
    label.setText(label.fontMetrics().elidedText(caption_, Qt::ElideMiddle, label.contentsRect().width()));
    setAccessibleName(caption_);
    setToolTipText(label.text() == caption_ ? QString() : caption_);
}

void Label::makeLink() {
    link_ = true;
    as<QLabel>().setIndent(0);  // else Qt adds half a letter inside the frame
    widget()->setCursor(Qt::PointingHandCursor);
    widget()->setFocusPolicy(Qt::StrongFocus);
    widget()->setProperty("link", true);
    repolish();
}

bool Label::filter(QEvent& event) {
    switch (event.type()) {
        case QEvent::Resize:
            if (elided_) showCaption();
            return false;
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
