#include "platform/files/FileSystemObject.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <filesystem>

#include "platform/base/FileErrors.h"
#include "platform/files/FileContent.h"

namespace lyrebrook {
namespace {

/// Throws for the first file below `folder` that its owner may not write. Links are not looked behind.
void refuseProtected(const std::filesystem::path& folder) {
    std::error_code error;
    for (auto entry = std::filesystem::recursive_directory_iterator(folder, error);
         !error && entry != std::filesystem::recursive_directory_iterator(); entry.increment(error)) {
        const auto status = entry->symlink_status(error);
        const bool writable = (status.permissions() & std::filesystem::perms::owner_write) != std::filesystem::perms{};
        if (std::filesystem::is_regular_file(status) && !writable)
            throw fileError(RuntimeErrorNumber::permissionDenied);
    }
    if (error) throw fileErrorOf(error.value());
}

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

void FileSystemObject::DeleteFolder(const QString& path, bool force) const {
    const std::filesystem::path folder = nativePath(path);
    const bool link = QFileInfo(path).isSymLink();
    if (!link && !FolderExists(path)) throw fileError(RuntimeErrorNumber::pathNotFound);
    if (!link && !force) refuseProtected(folder);
    std::error_code error;
    std::filesystem::remove_all(folder, error);
    if (error) throw fileErrorOf(error.value());
}

void FileSystemObject::CreateFolder(const QString& path) const {
    constexpr mode_t asTheUmaskSays = 0777;
    if (::mkdir(nativePath(path).c_str(), asTheUmaskSays) != 0) throw fileErrorOf(errno);
}

void FileSystemObject::CopyFile(const QString& from, const QString& to,
                                const std::function<void()>& betweenPieces) const {
    constexpr std::size_t piece = 4'194'304;
    const OpenFile source(from);
    const QString target = to.endsWith(u'/') ? to + QFileInfo(from).fileName() : to;
    // A copy can be made again, so it need not wait for the disk.
    ReplacingFile copy(nativePath(target), ReplacingFile::Flush::leaveToSystem);
    while (copy.copyFrom(source.number(), piece) > 0) {
        if (betweenPieces) betweenPieces();
    }
    copy.commit();
}

TextStream FileSystemObject::OpenTextFile(const QString& path, IOMode mode, bool create) const {
    if (!FileExists(path)) {
        if (!create) throw missingFileError(path);
        if (mode == IOMode::forReading) replaceFile(path, {});
    }
    return mode == IOMode::forReading ? TextStream::openForReading(path) : TextStream::openForWriting(path);
}

}  // namespace lyrebrook
