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
    /// A caption that is too wide loses its middle, and is the tool tip then; it asks for no room of its own.
    void setElided();
    /// Looks and acts like a link: a hand over it, the focus stops at it, Enter and Space click it.
    void makeLink();
    /// This text names that control to screen readers.
    void names(Control& control) const { control.setAccessibleName(Caption()); }

    Event<> Click;
    Event<> DblClick;

  protected:
    bool filter(QEvent& event) override;

  private:
    void showCaption();

    QString caption_;
    bool elided_ = false;
    bool pressed_ = false;
    bool link_ = false;
};

}  // namespace lyrebrook
