#include "platform/forms/OptionButton.h"

#include <QRadioButton>
#include <QSignalBlocker>

#include "platform/forms/Boundary.h"

namespace lyrebrook {

OptionButton::OptionButton(QWidget* container, const QString& caption) : Control(new QRadioButton(container)) {
    setCaption(caption);
    QObject::connect(&as<QRadioButton>(), &QRadioButton::toggled, [this](bool chosen) {
        if (chosen) fromQt([this] { Click.fire(); });
    });
}

void OptionButton::setCaption(const QString& caption) {
    caption_ = caption;
    as<QRadioButton>().setText(QString(caption).replace(u'&', QStringLiteral("&&")));
}

bool OptionButton::Value() const {
    return as<QRadioButton>().isChecked();
}

void OptionButton::setValue(bool value) {
    if (Value() == value) return;
    {
        const QSignalBlocker noSignal(widget());
        // A group always keeps its chosen button; for none to be chosen this one leaves it for a moment.
        as<QRadioButton>().setAutoExclusive(value);
        as<QRadioButton>().setChecked(value);
        as<QRadioButton>().setAutoExclusive(true);
    }
    if (value) Click.fire();
}

}  // namespace lyrebrook
