#pragma once

#include "platform/forms/Control.h"

namespace lyrebrook {

/// One choice of several: all option buttons of one container form a group. `Click` comes when the button becomes the
/// chosen one, by the user or from code.
class OptionButton final : public Control {
  public:
    explicit OptionButton(QWidget* container, const QString& caption = {});

    QString Caption() const { return caption_; }
    void setCaption(const QString& caption);
    bool Value() const;
    void setValue(bool value);

    Event<> Click;

  private:
    QString caption_;
};

}  // namespace lyrebrook
