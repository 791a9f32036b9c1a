#include "platform/forms/Frame.h"

#include <QGroupBox>

namespace lyrebrook {

Frame::Frame(QWidget* container, const QString& caption) : Control(new QGroupBox(container)) {
    setCaption(caption);
}

void Frame::setCaption(const QString& caption) {
    caption_ = caption;
    as<QGroupBox>().setTitle(QString(caption).replace(u'&', QStringLiteral("&&")));
}

}  // namespace lyrebrook
