#include "support/Stopwatch.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace lyrebrook {
namespace {

Milliseconds timeOf(clockid_t clock) {
    timespec time = {};
    ::clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

Milliseconds timeOf(const timeval& time) {
    return std::chrono::seconds(time.tv_sec) + std::chrono::microseconds(time.tv_usec);
}

/// Where the command's output goes.
class SilentFiles {
  public:
    SilentFiles() {
        ::posix_spawn_file_actions_init(&actions_);
        for (const int file : {STDOUT_FILENO, STDERR_FILENO})
            ::posix_spawn_file_actions_addopen(&actions_, file, "/dev/null", O_WRONLY, 0);
    }
    ~SilentFiles() { ::posix_spawn_file_actions_destroy(&actions_); }
    SilentFiles(const SilentFiles&) = delete;
    SilentFiles& operator=(const SilentFiles&) = delete;

    const posix_spawn_file_actions_t* get() const { return &actions_; }

  private:
    posix_spawn_file_actions_t actions_ = {};
};

/// The processor's time of the command.
Milliseconds run(std::vector<std::string> command) {
    std::vector<char*> arguments;
    for (std::string& argument : command) arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    pid_t child = 0;
    int status = -1;
    rusage used = {};
    const SilentFiles silent;
    if (::posix_spawnp(&child, arguments.front(), silent.get(), nullptr, arguments.data(), environ) != 0 ||
        ::wait4(child, &status, 0, &used) != child || status != 0) {
        std::fprintf(stderr, "%s failed\n", command.front().c_str());
        std::exit(EXIT_FAILURE);
    }
    return timeOf(used.ru_utime) + timeOf(used.ru_stime);
}

}  // namespace

Cost costOf(const std::function<void()>& work) {
    const Milliseconds clock = timeOf(CLOCK_MONOTONIC);
    const Milliseconds processor = timeOf(CLOCK_THREAD_CPUTIME_ID);
    work();
    return {.clock = timeOf(CLOCK_MONOTONIC) - clock, .processor = timeOf(CLOCK_THREAD_CPUTIME_ID) - processor};
}

Cost costOfCommand(const std::vector<std::string>& command) {
    const Milliseconds clock = timeOf(CLOCK_MONOTONIC);
    const Milliseconds processor = run(command);
    return {.clock = timeOf(CLOCK_MONOTONIC) - clock, .processor = processor};
}

}  // namespace lyrebrook
