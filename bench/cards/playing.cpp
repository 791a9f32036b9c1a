// What the program takes of the processor while a song of four tracks plays and its meters move, beside what the sound
// server takes for it.
#include <cstdio>
#include <ctime>

#include "integration/support/ServerStudio.h"
#include "recorder/FrmComposer.h"
#include "shell/modConfig.h"
#include "support/benchScreen.h"

namespace lyrebrook {
namespace {

double ownSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

void measureOn(ServerKind kind) {
    constexpr std::chrono::seconds length{30};
    ServerStudio desk(kind);
    const Sound music = ramp(60 * framesPerSecond);
    for (int track = 1; track <= trackCount; ++track) writeWaveFile(trackFilePath(track).toStdString(), music);
    frmComposer.Show();
    frmComposer->cmdPlay.setValue(true);
    desk.live(2s);
    const double own = ownSeconds();
    const double server = desk.server.processorSeconds();
    desk.live(length);
    const auto percent = [length](double seconds) { return seconds * 100 / static_cast<double>(length.count()); };
    std::printf("CPU %s program %.1f %% server %.1f %%\n", nameOf(kind).c_str(), percent(ownSeconds() - own),
                percent(desk.server.processorSeconds() - server));
    std::fflush(stdout);
}

void measure() {
    for (const ServerKind kind : {ServerKind::pulseAudio, ServerKind::pipeWire}) measureOn(kind);
}

}  // namespace
}  // namespace lyrebrook

int main(int argc, char* argv[]) {
    return lyrebrook::benchScreen(argc, argv, lyrebrook::measure);
}
