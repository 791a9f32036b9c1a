#include "integration/support/SoundServer.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <thread>

namespace lyrebrook {
namespace {

constexpr std::chrono::seconds longestStart{15};

const std::string pipeWireSession = "pipewire & sleep 0.3; wireplumber & sleep 0.3; exec pipewire-pulse";

/// Starts a program at the head of a process group of its own, with its words in a file.
pid_t startProgram(const std::vector<std::string>& words, const std::filesystem::path& log) {
    std::vector<char*> arguments;
    for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, log.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    posix_spawn_file_actions_adddup2(&files, STDOUT_FILENO, STDERR_FILENO);
    pid_t process = -1;
    const int failed = posix_spawnp(&process, arguments[0], &files, &attributes, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    posix_spawnattr_destroy(&attributes);
    if (failed != 0) throw std::runtime_error("can't start " + words[0]);
    return process;
}

/// User and system time of a process, from the 14th and 15th field of its `stat`; the 5th is its group.
double secondsOfGroupMember(const std::filesystem::path& stat, pid_t group) {
    std::ifstream file(stat);
    std::string text{std::istreambuf_iterator<char>(file), {}};
    long owner = 0;
    unsigned long user = 0;
    unsigned long system = 0;
    const std::size_t name = text.rfind(')');
    if (name == std::string::npos) return 0;
    std::sscanf(text.c_str() + name + 1, " %*c %*d %ld %*d %*d %*d %*u %*u %*u %*u %*u %lu %lu", &owner, &user,
                &system);
    return owner == group ? static_cast<double>(user + system) / static_cast<double>(sysconf(_SC_CLK_TCK)) : 0;
}

}  // namespace

std::string nameOf(ServerKind kind) {
    return kind == ServerKind::pulseAudio ? "PulseAudio" : "PipeWire";
}

SoundServer::SoundServer(ServerKind kind) : kind_(kind) {
    for (const char* variable : {"XDG_RUNTIME_DIR", "HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"}) {
        setenv(variable, folder_.c_str(), 1);
    }
    std::filesystem::create_directory(folder_ / "pulse");
    setenv("PULSE_SERVER", ("unix:" + (folder_ / "pulse/native").string()).c_str(), 1);
}

SoundServer::~SoundServer() {
    kill();
}

void SoundServer::start() {
    process_ = startProgram(command(), folder_ / "log");
    const auto end = std::chrono::steady_clock::now() + longestStart;
    while (control("list short sinks").find(sink) == std::string::npos) {
        if (std::chrono::steady_clock::now() > end) throw std::runtime_error(nameOf(kind_) + " doesn't start");
        if (kind_ == ServerKind::pipeWire) loadSink();
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
}

void SoundServer::kill() {
    if (process_ < 0) return;
    ::kill(-process_, SIGKILL);
    waitpid(process_, nullptr, 0);
    process_ = -1;
    for (const char* left : {"pulse/native", "pipewire-0", "pipewire-0.lock", "pipewire-0-manager"}) {
        std::filesystem::remove(folder_ / left);
    }
}

void SoundServer::freeze() const {
    ::kill(-process_, SIGSTOP);
}

void SoundServer::thaw() const {
    ::kill(-process_, SIGCONT);
}

std::string SoundServer::control(const std::string& command) const {
    const std::unique_ptr<FILE, int (*)(FILE*)> answer(popen(("pactl " + command + " 2>/dev/null").c_str(), "r"),
                                                       pclose);
    std::string text;
    std::array<char, 512> part{};
    while (std::fgets(part.data(), part.size(), answer.get()) != nullptr) text += part.data();
    return text;
}

void SoundServer::addSource(const std::string& name, const std::string& description) const {
    const std::string described = "description='" + description + "'";
    if (kind_ == ServerKind::pulseAudio) {
        control("load-module module-null-source source_name=" + name + " \"" + described + '"');
    } else {
        control("load-module module-null-sink media.class=Audio/Source/Virtual sink_name=" + name +
                " \"sink_properties=\\\"device." + described + "\\\"\"");
    }
    const auto end = std::chrono::steady_clock::now() + longestStart;
    while (control("list short sources").find('\t' + name + '\t') == std::string::npos) {
        if (std::chrono::steady_clock::now() > end) throw std::runtime_error(name + " doesn't appear");
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

std::string SoundServer::moduleOf(const std::string& deviceName) const {
    std::istringstream modules(control("list short modules"));
    for (std::string line; std::getline(modules, line);) {
        if (line.find("_name=" + deviceName) != std::string::npos) return line.substr(0, line.find('\t'));
    }
    return {};
}

double SoundServer::processorSeconds() const {
    double seconds = 0;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        if (is_regular_file(entry.path() / "stat")) seconds += secondsOfGroupMember(entry.path() / "stat", process_);
    }
    return seconds;
}

std::vector<std::string> SoundServer::command() const {
    if (kind_ == ServerKind::pipeWire) return {"dbus-run-session", "--", "sh", "-c", pipeWireSession};
    const std::string socket = "socket=" + (folder_ / "pulse/native").string();
    return {"pulseaudio",
            "-n",
            "--daemonize=no",
            "--use-pid-file=no",
            "--exit-idle-time=-1",
            "--disable-shm=no",
            "-L",
            "module-native-protocol-unix auth-anonymous=1 " + socket,
            "-L",
            std::string("module-null-sink sink_name=") + sink,
            "-L",
            "module-always-sink",
            "-L",
            "module-rescue-streams"};
}

void SoundServer::loadSink() const {
    if (control("info").empty()) return;
    control(std::string("load-module module-null-sink sink_name=") + sink);
}

}  // namespace lyrebrook
