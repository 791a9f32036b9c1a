#include "platform/files/FileSystemObject.h"

#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>

#include "platform/base/FileErrors.h"
#include "platform/files/FileContent.h"

namespace lyrebrook {
namespace {

bool comesBefore(const File& left, const File& right) {
    const int order = QString::compare(left.Name, right.Name, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : left.Name < right.Name;
}

}  // namespace

std::vector<File> Folder::Files() const {
    std::vector<File> files;
    for (const QFileInfo& entry : QDir(path_).entryInfoList(QDir::Files | QDir::Hidden, QDir::NoSort)) {
        files.push_back({entry.fileName(), entry.filePath(), entry.size()});
    }
    std::sort(files.begin(), files.end(), comesBefore);
    return files;
}

bool FileSystemObject::FileExists(const QString& path) const {
    return QFileInfo(path).isFile();
}

bool FileSystemObject::FolderExists(const QString& path) const {
    return QFileInfo(path).isDir();
}

Folder FileSystemObject::GetFolder(const QString& path) const {
    if (!FolderExists(path)) throw fileError(RuntimeErrorNumber::pathNotFound);
    return Folder(path);
}

void FileSystemObject::DeleteFile(const QString& path, bool force) const {
    const QFileInfo file(path);
    if (!file.isFile() && !file.isSymLink()) throw missingFileError(path);
    const bool readOnly = file.isFile() && !file.permission(QFile::WriteOwner);
    if (readOnly && !force) throw fileError(RuntimeErrorNumber::permissionDenied);
    if (::unlink(nativePath(path).c_str()) != 0) throw fileErrorOf(errno);
}

TextStream FileSystemObject::OpenTextFile(const QString& path, IOMode mode, bool create) const {
    if (!FileExists(path)) {
        if (!create) throw missingFileError(path);
        replaceFile(path, {});
    }
    return mode == IOMode::forReading ? TextStream::openForReading(path) : TextStream::openForWriting(path);
}

}  // namespace lyrebrook
