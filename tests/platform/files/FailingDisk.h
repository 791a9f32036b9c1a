#pragma once

#include <algorithm>
#include <cerrno>
#include <limits>

#include "platform/base/ReplacingFile.h"

namespace lyrebrook {

/// The real disk, which is short of room and breaks where a test says. In force while it lives.
class FailingDisk : public DiskCalls {
  public:
    FailingDisk() { ReplacingFile::setDiskCalls(this); }
    ~FailingDisk() override { ReplacingFile::setDiskCalls(nullptr); }

    std::size_t room = std::numeric_limits<std::size_t>::max();         ///< bytes until it is full
    std::size_t bytesAtOnce = std::numeric_limits<std::size_t>::max();  ///< taken by one write
    bool copies = true;                                                 ///< from file to file by itself
    bool interrupts = false;                                            ///< every second write
    int flushError = 0;
    int renameError = 0;

    ssize_t write(int file, std::span<const std::byte> bytes) override {
        if (interrupts && (interrupted_ = !interrupted_)) return fail(EINTR);
        if (room == 0) return fail(ENOSPC);
        const std::size_t count = std::min({bytes.size(), room, bytesAtOnce});
        room -= count;
        return DiskCalls::write(file, bytes.first(count));
    }
    ssize_t copy(int from, int to, std::size_t bytes) override {
        if (!copies) return fail(EXDEV);
        if (room == 0) return fail(ENOSPC);
        const ssize_t count = DiskCalls::copy(from, to, std::min({bytes, room, bytesAtOnce}));
        if (count > 0) room -= static_cast<std::size_t>(count);
        return count;
    }
    int flush(int file) override { return flushError ? fail(flushError) : DiskCalls::flush(file); }
    int rename(const char* from, const char* to) override {
        return renameError ? fail(renameError) : DiskCalls::rename(from, to);
    }

  private:
    static int fail(int error) {
        errno = error;
        return -1;
    }

    bool interrupted_ = false;
};

}  // namespace lyrebrook
