#include "platform/base/ReplacingFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <string>

#include "platform/base/Check.h"
#include "platform/base/FileErrors.h"

namespace lyrebrook {
namespace {

constexpr std::size_t stepBytes = std::size_t{4} << 20;

DiskCalls theDisk;
DiskCalls* disk = &theDisk;

/// Where a chain of links ends; the path itself when it names no link or a broken one.
std::filesystem::path withoutLinks(const std::filesystem::path& path) {
    std::error_code error;
    const auto real = std::filesystem::canonical(path, error);
    return error ? path : real;
}

/// Short and free of the target's name: the longest allowed name can be replaced too, and who looks through the folder
/// for names of the product never takes the temporary file for one.
std::filesystem::path nextTemporary(const std::filesystem::path& target) {
    static std::atomic<unsigned> count = 0;
    return target.parent_path() / (".lyrebrook-" + std::to_string(getpid()) + '-' + std::to_string(++count));
}

void refuseUnwritable(const std::filesystem::path& target) {
    struct stat old = {};
    if (::stat(target.c_str(), &old) != 0) {
        if (errno != ENOENT) throw fileErrorOf(errno);
        return;
    }
    if (!S_ISREG(old.st_mode))
        throw fileErrorOf(EISDIR);  // a folder, or a device that a file must not take the place of
    if ((old.st_mode & S_IWUSR) == 0 || ::access(target.c_str(), W_OK) != 0) throw fileErrorOf(EACCES);
}

/// Has the disk begin with what is written so far, so that it works while the next step is copied and the flush at the
/// end finds little left. Only advice.
void startDisk(int file) noexcept {
    ::sync_file_range(file, 0, 0, SYNC_FILE_RANGE_WRITE);
}

/// Makes the rename itself durable. The new content is in place by then, so a folder that can't be flushed (some
/// network disks) is no failure of the replacement.
void flushFolder(const std::filesystem::path& folder) noexcept {
    const int file = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (file < 0) return;
    ::fsync(file);
    ::close(file);
}

}  // namespace

ssize_t DiskCalls::write(int file, std::span<const std::byte> bytes) {
    return ::write(file, bytes.data(), bytes.size());
}

ssize_t DiskCalls::copy(int from, int to, std::size_t bytes) {
    return ::copy_file_range(from, nullptr, to, nullptr, bytes, 0);
}

int DiskCalls::flush(int file) {
    return ::fsync(file);
}

int DiskCalls::rename(const char* from, const char* to) {
    return std::rename(from, to);
}

ReplacingFile::ReplacingFile(const std::filesystem::path& path, Flush flush)
    : target_(withoutLinks(path)), flush_(flush) {
    refuseUnwritable(target_);
    openTemporary();
    keepPermissions();
}

ReplacingFile::~ReplacingFile() {
    close();
    if (!temporary_.empty()) ::unlink(temporary_.c_str());
}

void ReplacingFile::write(std::span<const std::byte> bytes) {
    CHECK(file_ >= 0);
    while (!bytes.empty()) {
        const ssize_t written = disk->write(file_, bytes.first(std::min(bytes.size(), stepBytes)));
        if (written >= 0) {
            bytes = bytes.subspan(static_cast<std::size_t>(written));
            if (flush_ == Flush::toDisk && !bytes.empty()) startDisk(file_);
        } else if (errno != EINTR) {
            throw fileErrorOf(errno);
        }
    }
}

std::size_t ReplacingFile::copyFrom(int source, std::size_t bytes) {
    CHECK(file_ >= 0);
    // The system copies without a way through our memory, and shares the bytes on disks that can. Where it can't, it
    // says so by an error or by nothing at all, and then reading tells whether the source is bad or at its end.
    const ssize_t copied = disk->copy(source, file_, bytes);
    if (copied > 0) return static_cast<std::size_t>(copied);
    return readAndWrite(source, bytes);
}

std::size_t ReplacingFile::readAndWrite(int source, std::size_t bytes) {
    std::array<std::byte, 65536> piece;
    const std::size_t wanted = std::min(bytes, piece.size());
    ssize_t count;
    do {
        count = ::read(source, piece.data(), wanted);
    } while (count < 0 && errno == EINTR);
    if (count < 0) throw fileErrorOf(errno);
    write(std::span(piece).first(static_cast<std::size_t>(count)));
    return static_cast<std::size_t>(count);
}

void ReplacingFile::commit() {
    CHECK(file_ >= 0);
    if (flush_ == Flush::toDisk && disk->flush(file_) != 0) throw fileErrorOf(errno);
    const int file = file_;
    file_ = -1;
    if (::close(file) != 0) throw fileErrorOf(errno);
    if (disk->rename(temporary_.c_str(), target_.c_str()) != 0) throw fileErrorOf(errno);
    temporary_.clear();
    if (flush_ == Flush::toDisk) flushFolder(target_.parent_path());
}

void ReplacingFile::setDiskCalls(DiskCalls* calls) noexcept {
    disk = calls ? calls : &theDisk;
}

void ReplacingFile::openTemporary() {
    constexpr mode_t asTheUmaskSays = 0666;
    std::filesystem::path name;
    do {  // a name can be taken by what a killed program with our number left behind
        name = nextTemporary(target_);
        file_ = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, asTheUmaskSays);
    } while (file_ < 0 && errno == EEXIST);
    if (file_ < 0) throw fileErrorOf(errno);
    temporary_ = name;
}

void ReplacingFile::keepPermissions() const {
    struct stat old = {};
    if (::stat(target_.c_str(), &old) != 0) return;
    // Disks without permissions refuse this and have none to keep.
    ::fchmod(file_, old.st_mode & 07777);
}

void ReplacingFile::close() noexcept {
    if (file_ >= 0) ::close(file_);
    file_ = -1;
}

}  // namespace lyrebrook
