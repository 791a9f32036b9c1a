#pragma once

#include <sys/types.h>

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "support/TemporaryFolder.h"

namespace lyrebrook {

enum class ServerKind { pulseAudio, pipeWire };
std::string nameOf(ServerKind kind);
inline void PrintTo(ServerKind kind, std::ostream* out) {
    *out << nameOf(kind);
}

/// A sound server with one null sink, `desk`, private to a test: in a folder of its own, reached by this process and
/// what it starts. It lives from `start` to `kill`, and not longer than this object. One at a time.
class SoundServer {
  public:
    static constexpr const char* sink = "desk";

    explicit SoundServer(ServerKind kind);
    ~SoundServer();
    SoundServer(const SoundServer&) = delete;
    SoundServer& operator=(const SoundServer&) = delete;

    /// Waits until the sink is there.
    void start();

    /// At once, as in a crash.
    void kill();

    /// Stands still, as a hung server does, and goes on.
    void freeze() const;
    void thaw() const;

    /// A command of `pactl`; tells what it answered. What a command fails with is an empty answer.
    std::string control(const std::string& command) const;

    /// A source that delivers silence. Waits until it is listed.
    void addSource(const std::string& name, const std::string& description) const;

    /// Number of the module that made a sink or a source.
    std::string moduleOf(const std::string& deviceName) const;

    /// Processor time that the server has used.
    double processorSeconds() const;

    const std::filesystem::path& folder() const { return folder_; }

  private:
    std::vector<std::string> command() const;
    void loadSink() const;

    ServerKind kind_;
    TemporaryFolder temporary_;
    const std::filesystem::path& folder_ = temporary_.path;
    pid_t process_ = -1;
};

}  // namespace lyrebrook
