#pragma once

#include <QStringList>

#include "platform/forms/Control.h"

class QTabBar;

namespace lyrebrook {

/// A row of tabs, counted from 1, which shows no page by itself. `Click` comes when the user clicks any tab or moves to
/// another by key, and when code selects another.
class TabStrip final : public Control {
  public:
    TabStrip(QWidget* container, const QStringList& captions);

    int Count() const;
    int SelectedItem() const;
    void setSelectedItem(int index);

    Event<> Click;

  private:
    QTabBar& bar() const;
};

}  // namespace lyrebrook
