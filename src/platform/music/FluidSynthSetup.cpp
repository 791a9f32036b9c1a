#include "platform/music/FluidSynthSetup.h"

#include "platform/sound/SoundFormat.h"

#include <dlfcn.h>
#include <fluidsynth.h>

namespace lyrebrook {
namespace {

// The library would write its messages from the card's thread.
void silenceLog() {
    for (int level = FLUID_PANIC; level < LAST_LOG_LEVEL; ++level) fluid_set_log_function(level, nullptr, nullptr);
}

}  // namespace

fluid_settings_t* makeRealTimeSettings() {
    silenceLog();
    fluid_settings_t* settings = new_fluid_settings();
    fluid_settings_setnum(settings, "synth.sample-rate", framesPerSecond);
    fluid_settings_setnum(settings, "synth.gain", 0.5);
    fluid_settings_setint(settings, "synth.polyphony", 256);
    fluid_settings_setint(settings, "synth.cpu-cores", 1);
    fluid_settings_setint(settings, "synth.chorus.active", 0);  // costs as much as eight voices
    // One thread at a time works on a synthesizer.
    fluid_settings_setint(settings, "synth.threadsafe-api", 0);
    return settings;
}

}  // namespace lyrebrook

using ParallelRegion = void (*)(void*);
using RunParallel = void (*)(ParallelRegion, void*, unsigned, unsigned);

// Debian builds FluidSynth with OpenMP: its effects are a parallel region, of one thread with our settings. The OpenMP
// library allocates and frees a team of threads for each block even so, which has no place on the card's thread. This
// definition stands in front of the library's and runs such a region where it is; others, such as the loading of
// samples on all cores, go on to the library.
extern "C" void GOMP_parallel(ParallelRegion region, void* data, unsigned threads, unsigned flags) {
    if (threads == 1) return region(data);
    static const auto runParallel = reinterpret_cast<RunParallel>(dlsym(RTLD_NEXT, "GOMP_parallel"));
    runParallel(region, data, threads, flags);
}
