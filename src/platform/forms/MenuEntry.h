#pragma once

#include <QKeySequence>
#include <QString>

#include "platform/forms/Event.h"

class QAction;
class QMenu;

namespace lyrebrook {

class Form;

/// An entry of a form's menu bar, or of another entry's menu; in the order in which they are made. An "&" in a caption
/// stands for itself.
class MenuEntry {
  public:
    MenuEntry(Form& form, const QString& caption);
    MenuEntry(MenuEntry& parent, const QString& caption);
    MenuEntry(const MenuEntry&) = delete;
    MenuEntry& operator=(const MenuEntry&) = delete;

    QString Caption() const { return caption_; }
    void setCaption(const QString& caption);
    bool Enabled() const;
    void setEnabled(bool enabled);
    /// A key that clicks the entry wherever the focus is on its form: also on a button, which then doesn't see the key,
    /// but not while a text is being typed with that key.
    void setShortcut(const QKeySequence& keys);
    QAction& action() const { return *action_; }

    Event<> Click;

  private:
    MenuEntry(QAction* action, const QString& caption);
    QMenu& menu();

    QAction* action_;
    QString caption_;
};

}  // namespace lyrebrook
