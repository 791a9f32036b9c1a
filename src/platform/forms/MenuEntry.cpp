#include "platform/forms/MenuEntry.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "platform/forms/Boundary.h"
#include "platform/forms/Form.h"

namespace lyrebrook {
namespace {

QAction* addTo(QWidget& bar) {
    auto* action = new QAction(&bar);
    bar.addAction(action);
    return action;
}

}  // namespace

MenuEntry::MenuEntry(Form& form, const QString& caption) : MenuEntry(addTo(*form.window().menuBar()), caption) {
    form.window().menuBar()->setNativeMenuBar(false);
}

MenuEntry::MenuEntry(MenuEntry& parent, const QString& caption) : MenuEntry(addTo(parent.menu()), caption) {}

MenuEntry::MenuEntry(QAction* action, const QString& caption) : action_(action) {
    setCaption(caption);
    QObject::connect(action, &QAction::triggered, [this] { fromQt([this] { Click.fire(); }); });
}

QMenu& MenuEntry::menu() {
    if (!action_->menu()) action_->setMenu(new QMenu(static_cast<QWidget*>(action_->parent())));
    return *action_->menu();
}

void MenuEntry::setCaption(const QString& caption) {
    caption_ = caption;
    action_->setText(QString(caption).replace(u'&', QStringLiteral("&&")));
}

bool MenuEntry::Enabled() const {
    return action_->isEnabled();
}

void MenuEntry::setEnabled(bool enabled) {
    action_->setEnabled(enabled);
}

void MenuEntry::setShortcut(const QKeySequence& keys) {
    action_->setShortcut(keys);
    action_->setAutoRepeat(false);
}

}  // namespace lyrebrook
