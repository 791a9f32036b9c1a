#include "platform/forms/TabStrip.h"

#include <QSignalBlocker>
#include <QTabBar>

#include "platform/base/RuntimeError.h"
#include "platform/forms/Boundary.h"

namespace lyrebrook {

TabStrip::TabStrip(QWidget* container, const QStringList& captions) : Control(new QTabBar(container)) {
    bar().setDrawBase(false);
    bar().setExpanding(false);
    for (const QString& caption : captions) bar().addTab(QString(caption).replace(u'&', QStringLiteral("&&")));
    const auto clicked = [this] { fromQt([this] { Click.fire(); }); };
    QObject::connect(&bar(), &QTabBar::currentChanged, clicked);
    QObject::connect(&bar(), &QTabBar::tabBarClicked, [this, clicked](int index) {
        if (index == bar().currentIndex()) clicked();
    });
}

QTabBar& TabStrip::bar() const {
    return as<QTabBar>();
}

int TabStrip::Count() const {
    return bar().count();
}

int TabStrip::SelectedItem() const {
    return bar().currentIndex() + 1;
}

void TabStrip::setSelectedItem(int index) {
    if (index < 1 || index > Count())
        throw RuntimeError(RuntimeErrorNumber::invalidProcedureCall, "Invalid procedure call or argument");
    if (index == SelectedItem()) return;
    {
        const QSignalBlocker noSignal(widget());
        bar().setCurrentIndex(index - 1);
    }
    Click.fire();
}

}  // namespace lyrebrook
