#pragma once

#include "platform/forms/Control.h"

namespace lyrebrook {

/// A captioned border around the controls that belong together.
class Frame final : public Control {
  public:
    explicit Frame(QWidget* container, const QString& caption = {});

    QString Caption() const { return caption_; }
    void setCaption(const QString& caption);

  private:
    QString caption_;
};

}  // namespace lyrebrook
