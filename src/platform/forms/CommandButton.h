#pragma once

#include <QIcon>

#include "platform/forms/Control.h"

namespace lyrebrook {

/// A push button; Enter and Space click it. `setValue(true)` clicks it as a user would.
class CommandButton final : public Control {
  public:
    explicit CommandButton(QWidget* container, const QString& caption = {});

    QString Caption() const { return caption_; }
    /// An "&" stands for itself.
    void setCaption(const QString& caption);
    /// A picture in place of the caption; the button then needs an accessible name.
    void setPicture(const QIcon& picture, Twips size = 360);
    void setValue(bool value);

    Event<> Click;

  protected:
    bool filter(QEvent& event) override;

  private:
    QString caption_;
};

}  // namespace lyrebrook
