#include "platform/forms/Frame.h"

#include <QEvent>
#include <QGroupBox>

namespace lyrebrook {

Frame::Frame(QWidget* container, const QString& caption) : Control(new QGroupBox(container)) {
    setCaption(caption);
}

void Frame::setCaption(const QString& caption) {
    caption_ = caption;
    showCaption();
}

void Frame::setElided() {
    elided_ = true;
    showCaption();
}

void Frame::showCaption() {
    QString shown = caption_;
    if (elided_) {
        constexpr int rims = 6;
        shown = widget()->fontMetrics().elidedText(caption_, Qt::ElideRight, widget()->width() - rims);
        setToolTipText(shown == caption_ ? QString() : caption_);
    }
    as<QGroupBox>().setTitle(shown.replace(u'&', QStringLiteral("&&")));
}

bool Frame::filter(QEvent& event) {
    if (elided_ && (event.type() == QEvent::Resize || event.type() == QEvent::FontChange)) showCaption();
    return false;
}

void Frame::applyColours() {
    Control::applyColours();
    if (isSystemColour(ForeColor())) return;
    // The theme gives captions a colour of their own.
    const QString rule = QStringLiteral("QGroupBox::title{color:%1;}").arg(toQColor(ForeColor()).name());
    widget()->setStyleSheet(widget()->styleSheet() + rule);
}

}  // namespace lyrebrook
