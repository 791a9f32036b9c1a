#pragma once

#include "platform/forms/Control.h"

class QListWidget;

namespace lyrebrook {

/// A folder, with the folders that it lies in above it and its own folders below; a double click or Enter goes there.
class DirListBox final : public Control {
  public:
    explicit DirListBox(QWidget* container);

    /// Without a separator at its end, unless it is the root. Empty until it is first set.
    QString Path() const { return path_; }
    /// Fires `Change` when it becomes another one. A folder that can't be read is the `RuntimeError` "Path not found",
    /// and nothing changes.
    void setPath(const QString& path);

    Event<> Change;

  private:
    QListWidget& list() const;
    void fill();
    void open(int row);

    QString path_;
};

}  // namespace lyrebrook
