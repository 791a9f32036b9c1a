#pragma once

#include "platform/forms/Control.h"

namespace lyrebrook {

/// A box that is ticked (1) or not (0). `Click` comes when the value changes, by the user or from code, and only then.
class CheckBox final : public Control {
  public:
    explicit CheckBox(QWidget* container, const QString& caption = {}, int value = 0);

    QString Caption() const { return caption_; }
    void setCaption(const QString& caption);
    int Value() const;
    void setValue(int value);

    Event<> Click;

  private:
    QString caption_;
};

}  // namespace lyrebrook
