#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <vector>

#include "platform/files/TextStream.h"

namespace lyrebrook {

struct File {
    QString Name;
    QString Path;
    std::int64_t Size = 0;  ///< bytes
};

/// A folder that was there when FileSystemObject::GetFolder asked for it.
class Folder {
  public:
    explicit Folder(const QString& path) : path_(path) {}

    QString Path() const { return path_; }

    /// The files as they are now, hidden ones too, in the order of their names without case. Names that differ only in
    /// case follow in the order of their characters, so the order is the same each time and on each disk.
    std::vector<File> Files() const;

  private:
    QString path_;
};

enum class IOMode { forReading = 1, forWriting = 2 };

/// The product's window on the disk. Holds nothing. Program's thread. Failures are RuntimeErrors with the words and
/// numbers of the product; the questions answer false instead.
class FileSystemObject {
  public:
    bool FileExists(const QString& path) const;
    bool FolderExists(const QString& path) const;

    /// RuntimeError `pathNotFound` when there is no such folder.
    Folder GetFolder(const QString& path) const;

    /// RuntimeError `fileNotFound`, `pathNotFound`, or `permissionDenied`, which without `force` also meets a file that
    /// its owner may not write. A link goes, the file behind it stays.
    void DeleteFile(const QString& path, bool force = false) const;

    /// A folder with all that it holds. RuntimeError `pathNotFound`, or `permissionDenied`, which without `force` also
    /// meets a file in it that its owner may not write: then nothing goes. Of links, the folder's own and those in it,
    /// only the link goes.
    void DeleteFolder(const QString& path, bool force = false) const;

    /// RuntimeError `pathNotFound` when there is no folder to make it in, `fileAlreadyExists` for a name that is taken.
    void CreateFolder(const QString& path) const;

    /// Copies one file's content over whatever file is at `to`, or into the folder `to` when that ends in a separator.
    /// The copy stands there whole or, after a RuntimeError, not at all. `betweenPieces` runs every few megabytes.
    void CopyFile(const QString& from, const QString& to, const std::function<void()>& betweenPieces = {}) const;

    /// Without `create` a missing file is the RuntimeError `fileNotFound`; with it, reading makes an empty one, and
    /// writing makes the file when the stream is closed.
    TextStream OpenTextFile(const QString& path, IOMode mode, bool create = false) const;
};

}  // namespace lyrebrook
