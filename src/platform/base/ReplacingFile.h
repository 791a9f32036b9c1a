#pragma once

#include <sys/types.h>

#include <cstddef>
#include <filesystem>
#include <span>

namespace lyrebrook {

/// The calls by which a ReplacingFile changes the disk, with the results and `errno` of their namesakes. Tests hand in
/// a disk that fails at a chosen place.
class DiskCalls {
  public:
    virtual ~DiskCalls() = default;

    virtual ssize_t write(int file, std::span<const std::byte> bytes);
    virtual ssize_t copy(int from, int to, std::size_t bytes);  ///< copy_file_range from place to place
    virtual int flush(int file);
    virtual int rename(const char* from, const char* to);
};

/// A file's new content, written beside the old file and put in its place by `commit`: readers, a crash or a full disk
/// see the old content or the new one, never a mixture. An old file's permissions are kept and a link is followed.
///
/// One thread at a time. Owns the temporary file; without a `commit` that returned, the destructor removes it and the
/// old file stays as it was. Failures are RuntimeErrors: path not found, permission denied (also for a file that its
/// owner may not write), path/file access error for a folder or a device in the
/// file's place, disk full, device error.
class ReplacingFile {
  public:
    /// `toDisk` survives a power cut. `leaveToSystem` survives the end of the program and is meant for small things
    /// that change many times a second, and for what can be made again.
    enum class Flush { toDisk, leaveToSystem };

    explicit ReplacingFile(const std::filesystem::path& path, Flush flush = Flush::toDisk);
    ~ReplacingFile();
    ReplacingFile(const ReplacingFile&) = delete;
    ReplacingFile& operator=(const ReplacingFile&) = delete;

    void write(std::span<const std::byte> bytes);

    /// Appends what `source`, opened for reading, has next, at most `bytes` of it. How many that were, 0 at its end.
    std::size_t copyFrom(int source, std::size_t bytes);

    /// Puts what was written in the old file's place. Once, and nothing is written after it.
    void commit();

    /// Every ReplacingFile of the process writes through `calls` from now on; nothing means the real disk.
    static void setDiskCalls(DiskCalls* calls) noexcept;

  private:
    std::size_t readAndWrite(int source, std::size_t bytes);
    void openTemporary();
    void keepPermissions() const;
    void close() noexcept;

    std::filesystem::path target_;
    std::filesystem::path temporary_;
    Flush flush_;
    int file_ = -1;
};

}  // namespace lyrebrook
