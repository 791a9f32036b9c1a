#include "platform/forms/CheckBox.h"

#include <QCheckBox>
#include <QSignalBlocker>

#include "platform/forms/Boundary.h"

namespace lyrebrook {

CheckBox::CheckBox(QWidget* container, const QString& caption, int value) : Control(new QCheckBox(container)) {
    setCaption(caption);
    setValue(value);
    QObject::connect(&as<QCheckBox>(), &QCheckBox::toggled, [this] { fromQt([this] { Click.fire(); }); });
}

void CheckBox::setCaption(const QString& caption) {
    caption_ = caption;
    as<QCheckBox>().setText(QString(caption).replace(u'&', QStringLiteral("&&")));
}

int CheckBox::Value() const {
    return as<QCheckBox>().isChecked() ? 1 : 0;
}

void CheckBox::setValue(int value) {
    const bool ticked = value != 0;
    if (as<QCheckBox>().isChecked() == ticked) return;
    {
        const QSignalBlocker noSignal(widget());
        as<QCheckBox>().setChecked(ticked);
    }
    Click.fire();
}

}  // namespace lyrebrook
