#pragma once

#include <QDir>
#include <QString>

namespace lyrebrook {

/// The folder at a path, without a separator at its end unless it is the root. One that isn't there or can't be read is
/// the `RuntimeError` "Path not found".
QDir readableFolder(const QString& path);

}  // namespace lyrebrook
