#pragma once

#include "platform/forms/Control.h"

namespace lyrebrook {

/// A text that can be clicked. Not reached by the keyboard unless it is a link.
class Label final : public Control {
  public:
    explicit Label(QWidget* container, const QString& caption = {});

    QString Caption() const;
    void setCaption(const QString& caption);
    void setAlignment(Qt::Alignment alignment);
    void setWordWrap(bool wrap);
    /// Looks and acts like a link: a hand over it, the focus stops at it, Enter and Space click it.
    void makeLink();
    /// This text names that control to screen readers.
    void names(Control& control) const { control.setAccessibleName(Caption()); }

    Event<> Click;
    Event<> DblClick;

  protected:
    bool filter(QEvent& event) override;

  private:
    bool pressed_ = false;
    bool link_ = false;
};

}  // namespace lyrebrook
