#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <filesystem>

#include "platform/base/ReplacingFile.h"
#include "platform/base/RuntimeError.h"

namespace lyrebrook {

/// A file opened for reading; closed with the object. RuntimeErrors as those of `readFile`.
class OpenFile {
  public:
    explicit OpenFile(const QString& path);
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int number() const { return number_; }

    /// Bytes read into `place`, 0 at the end.
    qsizetype read(char* place, qsizetype size) const;

  private:
    int number_;
};

std::filesystem::path nativePath(const QString& path);

/// All bytes of a file. RuntimeError `fileNotFound`, `pathNotFound` when its folder is missing too, `pathFileAccess`
/// for what is no file, `permissionDenied`, `deviceInputOutput`.
QByteArray readFile(const QString& path);

/// Makes `bytes` the content of a file, as a ReplacingFile does and fails.
void replaceFile(const QString& path, QByteArrayView bytes, ReplacingFile::Flush flush = ReplacingFile::Flush::toDisk);

/// The error for a file that ought to be there: 53 where only the file is missing, 76 where its folder is too.
RuntimeError missingFileError(const QString& path);

}  // namespace lyrebrook
