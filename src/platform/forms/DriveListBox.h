#pragma once

#include "platform/forms/Control.h"

class QComboBox;

namespace lyrebrook {

/// The places where files begin: the root, the user's own folder, and what is mounted for the user.
class DriveListBox final : public Control {
  public:
    explicit DriveListBox(QWidget* container);

    QString Drive() const;
    /// Fires `Change` when another one is picked. A place that isn't listed is a `RuntimeError`.
    void setDrive(const QString& drive);

    Event<> Change;

  private:
    QComboBox& combo() const;
};

}  // namespace lyrebrook
