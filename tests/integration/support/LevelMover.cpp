#include "integration/support/LevelMover.h"

#include <pulse/pulseaudio.h>

#include <ctime>
#include <stdexcept>
#include <thread>

#include "platform/sound/cards/pulse/PulseHandles.h"

namespace lyrebrook {
namespace {

std::chrono::duration<double> threadTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

}  // namespace

std::chrono::duration<double> moveLevel(const std::string& sink, int times, std::chrono::milliseconds length) {
    const auto processor = threadTime();
    const PulseHandle<pa_mainloop> loop(pa_mainloop_new());
    const PulseHandle<pa_context> server(pa_context_new(pa_mainloop_get_api(loop.get()), "mover"));
    pa_context_connect(server.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr);
    while (pa_context_get_state(server.get()) != PA_CONTEXT_READY) {
        if (!PA_CONTEXT_IS_GOOD(pa_context_get_state(server.get()))) throw std::runtime_error("no server to move at");
        pa_mainloop_iterate(loop.get(), 1, nullptr);
    }
    const auto begun = std::chrono::steady_clock::now();
    for (int i = 1; i <= times; ++i) {
        pa_cvolume level{};
        pa_cvolume_set(&level, 2,
                       i == times ? PA_VOLUME_NORM / 2 : PA_VOLUME_NORM * static_cast<unsigned>(i % 100) / 100);
        pa_operation* const operation =
            pa_context_set_sink_volume_by_name(server.get(), sink.c_str(), &level, nullptr, nullptr);
        while (pa_operation_get_state(operation) == PA_OPERATION_RUNNING) pa_mainloop_iterate(loop.get(), 1, nullptr);
        pa_operation_unref(operation);
        std::this_thread::sleep_until(begun + length * i / times);
    }
    return threadTime() - processor;
}

}  // namespace lyrebrook
