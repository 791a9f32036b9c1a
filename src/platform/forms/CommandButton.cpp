#include "platform/forms/CommandButton.h"

#include <QKeyEvent>
#include <QPushButton>

#include "platform/forms/Boundary.h"

namespace lyrebrook {

CommandButton::CommandButton(QWidget* container, const QString& caption) : Control(new QPushButton(container)) {
    setCaption(caption);
    QObject::connect(&as<QPushButton>(), &QPushButton::clicked, [this] { fromQt([this] { Click.fire(); }); });
}

void CommandButton::setCaption(const QString& caption) {
    caption_ = caption;
    as<QPushButton>().setText(QString(caption).replace(u'&', QStringLiteral("&&")));
}

void CommandButton::setPicture(const QIcon& picture, Twips size) {
    as<QPushButton>().setIcon(picture);
    as<QPushButton>().setIconSize(QSize(toPixels(size), toPixels(size)));
}

void CommandButton::setValue(bool value) {
    if (value) Click.fire();
}

bool CommandButton::filter(QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    as<QPushButton>().click();
    return true;
}

}  // namespace lyrebrook
