#pragma once

#include "platform/forms/Control.h"

namespace lyrebrook {

/// A captioned border around the controls that belong together.
class Frame final : public Control {
  public:
    explicit Frame(QWidget* container, const QString& caption = {});

    QString Caption() const { return caption_; }
    void setCaption(const QString& caption);
    /// A caption that is too wide loses its end, and is the tool tip then.
    void setElided();

  protected:
    bool filter(QEvent& event) override;
    void applyColours() override;

  private:
    void showCaption();

    QString caption_;
    bool elided_ = false;
};

}  // namespace lyrebrook
