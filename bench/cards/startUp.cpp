// start_up PROGRAM: how long the program takes from its start to its first window, on the X display that is there, with
// a sound server, without one, and with one that never answers. Medians of five, after a start that isn't counted.
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "integration/support/MuteServer.h"
#include "integration/support/SoundServer.h"

namespace lyrebrook {
namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

/// The program's main window, or the box in which it says that there is no sound card.
bool windowIsUp() {
    constexpr const char* look =
        "for name in Lyrebrook 'Sound Card Test'; do xwininfo -name \"$name\"; done 2>/dev/null | grep -q IsViewable";
    return std::system(look) == 0;
}

double startOnce(char* program) {
    constexpr std::chrono::seconds longest{20};
    const auto begun = Clock::now();
    std::array<char*, 2> arguments{program, nullptr};
    pid_t process = -1;
    if (posix_spawn(&process, program, nullptr, nullptr, arguments.data(), environ) != 0) std::exit(1);
    while (!windowIsUp() && Clock::now() - begun < longest) std::this_thread::sleep_for(std::chrono::milliseconds(2));
    const Milliseconds took = Clock::now() - begun;
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    while (windowIsUp()) std::this_thread::sleep_for(std::chrono::milliseconds(20));
    return took.count();
}

void measure(const char* name, char* program) {
    startOnce(program);
    std::array<double, 5> runs{};
    for (double& run : runs) run = startOnce(program);
    std::ranges::sort(runs);
    std::printf("START %s %.0f ms\n", name, runs[2]);
    std::fflush(stdout);
}

}  // namespace
}  // namespace lyrebrook

int main(int argc, char* argv[]) {
    using namespace lyrebrook;
    if (argc != 2) return 2;
    for (const ServerKind kind : {ServerKind::pulseAudio, ServerKind::pipeWire}) {
        SoundServer server(kind);
        server.start();
        measure(nameOf(kind).c_str(), argv[1]);
    }
    const SoundServer place(ServerKind::pulseAudio);
    measure("without", argv[1]);
    const MuteServer mute(place.folder() / "pulse/native");
    measure("hanging", argv[1]);
}
