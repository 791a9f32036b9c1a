#include "platform/sound/MappedFile.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>

#include "platform/base/FileErrors.h"

namespace lyrebrook {
namespace {

/// Places of the mapped files, for the signal handler, which may run in the card's thread at any moment.
struct Place {
    std::atomic<bool> taken{false};
    std::atomic<std::uintptr_t> begin{0};
    std::atomic<std::uintptr_t> end{0};
};
std::array<Place, 256> places;
struct sigaction formerAction = {};
std::uintptr_t pageBytes = 0;

bool isMapped(std::uintptr_t address) noexcept {
    for (const Place& place : places) {
        if (address >= place.begin.load() && address < place.end.load()) return true;
    }
    return false;
}

/// A page behind the end of a file that was cut short: silence takes its place and the access is made again. Any
/// other access error goes to whoever was in charge before.
void onBusError(int, siginfo_t* information, void*) {
    const int formerError = errno;
    const auto address = reinterpret_cast<std::uintptr_t>(information->si_addr);
    void* page = static_cast<char*>(information->si_addr) - address % pageBytes;
    constexpr int replacing = MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED;
    if (!isMapped(address) || ::mmap(page, pageBytes, PROT_READ | PROT_WRITE, replacing, -1, 0) == MAP_FAILED) {
        ::sigaction(SIGBUS, &formerAction, nullptr);
    }
    errno = formerError;
}

void watchBusErrors() {
    pageBytes = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
    struct sigaction action = {};
    action.sa_sigaction = onBusError;
    action.sa_flags = SA_SIGINFO | SA_RESTART;
    ::sigaction(SIGBUS, &action, &formerAction);
}

void enter(std::span<const std::byte> bytes) {
    static const bool watching = (watchBusErrors(), true);
    static_cast<void>(watching);
    for (Place& place : places) {
        if (place.taken.exchange(true)) continue;
        const auto begin = reinterpret_cast<std::uintptr_t>(bytes.data());
        place.end.store(begin + bytes.size());
        place.begin.store(begin);
        return;
    }
    throw fileErrorOf(EMFILE);
}

void leave(std::span<const std::byte> bytes) noexcept {
    const auto begin = reinterpret_cast<std::uintptr_t>(bytes.data());
    for (Place& place : places) {
        if (!place.taken.load() || place.begin.load() != begin) continue;
        place.end.store(0);
        place.begin.store(0);
        place.taken.store(false);
        return;
    }
}

class OpenFile {
  public:
    explicit OpenFile(const std::filesystem::path& path) : file_(::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
        if (file_ >= 0) return;
        throw errno == ENOENT ? fileError(RuntimeErrorNumber::fileNotFound) : fileErrorOf(errno);
    }
    ~OpenFile() { ::close(file_); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    std::size_t size() const {
        struct stat status = {};
        if (::fstat(file_, &status) != 0) throw fileErrorOf(errno);
        if (!S_ISREG(status.st_mode)) throw fileError(RuntimeErrorNumber::pathFileAccess);
        return static_cast<std::size_t>(status.st_size);
    }

    std::span<std::byte> map(std::size_t size) const {
        void* start = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_NORESERVE, file_, 0);
        if (start == MAP_FAILED) throw fileErrorOf(errno);
        return {static_cast<std::byte*>(start), size};
    }

  private:
    int file_;
};

}  // namespace

MappedFile::MappedFile(const std::filesystem::path& path) {
    const OpenFile file(path);
    const std::size_t size = file.size();
    if (size == 0) return;
    const std::span<std::byte> bytes = file.map(size);
    try {
        enter(bytes);
    } catch (...) {
        ::munmap(bytes.data(), size);
        throw;
    }
    bytes_ = bytes;
    // Only advice: the disk starts reading while the screen is still being built.
    ::madvise(bytes.data(), size, MADV_WILLNEED);
}

MappedFile::~MappedFile() {
    if (bytes_.empty()) return;
    leave(bytes_);
    ::munmap(bytes_.data(), bytes_.size());
}

}  // namespace lyrebrook
