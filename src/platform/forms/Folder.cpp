#include "platform/forms/Folder.h"

#include <QFileInfo>

#include "platform/base/RuntimeError.h"

namespace lyrebrook {

QDir readableFolder(const QString& path) {
    const QFileInfo folder(path);
    if (path.isEmpty() || !folder.isDir() || !folder.isReadable() || !folder.isExecutable())
        throw RuntimeError(RuntimeErrorNumber::pathNotFound, "Path not found");
    return QDir(QDir::cleanPath(folder.absoluteFilePath()));
}

}  // namespace lyrebrook
