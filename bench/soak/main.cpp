#include <cstdlib>
#include <iostream>
#include <string_view>

#include "integration/support/Soak.h"

/// soak SERVER MINUTES: plays and records on a server of its own (pulseaudio or pipewire), a line for each minute.
int main(int argc, char* argv[]) {
    using namespace lyrebrook;
    if (argc != 3) {
        std::cerr << "soak pulseaudio|pipewire MINUTES\n";
        return 2;
    }
    Soak soak(std::string_view(argv[1]) == "pipewire" ? ServerKind::pipeWire : ServerKind::pulseAudio);
    const int minutes = std::atoi(argv[2]);
    for (int minute = 1; minute <= minutes; ++minute) {
        std::cout << minute << ": " << soak.round() << ", underruns " << soak.underruns() << ", lost frames "
                  << soak.lostInput() << std::endl;
    }
}
