#pragma once

#include "platform/forms/ListBox.h"

namespace lyrebrook {

/// The files of a folder whose names fit the pattern, by name without case.
class FileListBox final : public ListBox {
  public:
    explicit FileListBox(QWidget* container);

    QString Path() const { return path_; }
    /// A folder that can't be read is the `RuntimeError` "Path not found", and nothing changes.
    void setPath(const QString& path);
    QString Pattern() const { return pattern_; }
    /// Wildcards joined by ";", without case.
    void setPattern(const QString& pattern);
    /// Name of the selected file, empty when there is none.
    QString FileName() const { return Text(); }

  private:
    void fill();

    QString path_;
    QString pattern_ = QStringLiteral("*");
};

}  // namespace lyrebrook
