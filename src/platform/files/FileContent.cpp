#include "platform/files/FileContent.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>

#include "platform/base/FileErrors.h"

namespace lyrebrook {

OpenFile::OpenFile(const QString& path) : number_(::open(nativePath(path).c_str(), O_RDONLY | O_CLOEXEC)) {
    if (number_ < 0) throw errno == ENOENT ? missingFileError(path) : fileErrorOf(errno);
}

OpenFile::~OpenFile() {
    ::close(number_);
}

qsizetype OpenFile::read(char* place, qsizetype size) const {
    for (;;) {
        const ssize_t count = ::read(number_, place, static_cast<std::size_t>(size));
        if (count >= 0) return count;
        if (errno != EINTR) throw fileErrorOf(errno);
    }
}

std::filesystem::path nativePath(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

QByteArray readFile(const QString& path) {
    struct stat status = {};
    if (::stat(nativePath(path).c_str(), &status) != 0)
        throw errno == ENOENT ? missingFileError(path) : fileErrorOf(errno);
    if (!S_ISREG(status.st_mode)) throw fileErrorOf(EISDIR);  // opening a pipe would wait for its other end
    const OpenFile file(path);
    // One byte more than the file has: the read that meets the end needs no second round.
    QByteArray bytes(static_cast<qsizetype>(status.st_size) + 1, Qt::Uninitialized);
    qsizetype filled = 0;
    while (const qsizetype count = file.read(bytes.data() + filled, bytes.size() - filled)) {
        filled += count;
        if (filled == bytes.size()) bytes.resize(filled * 2);
    }
    bytes.truncate(filled);
    return bytes;
}

void replaceFile(const QString& path, QByteArrayView bytes, ReplacingFile::Flush flush) {
    ReplacingFile file(nativePath(path), flush);
    file.write(std::as_bytes(std::span(bytes.data(), static_cast<std::size_t>(bytes.size()))));
    file.commit();
}

RuntimeError missingFileError(const QString& path) {
    const bool hasFolder = QFileInfo(QFileInfo(path).path()).isDir();
    return fileError(hasFolder ? RuntimeErrorNumber::fileNotFound : RuntimeErrorNumber::pathNotFound);
}

}  // namespace lyrebrook
