#pragma once

#include "platform/forms/Control.h"

class QDir;

namespace lyrebrook {

class ListView;

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
    ListView& list() const;
    void fill(const QDir& folder);
    void add(const QString& path, int depth);

    QString path_;
};

}  // namespace lyrebrook
