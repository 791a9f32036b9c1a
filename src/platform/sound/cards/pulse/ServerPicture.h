#pragma once

#include <pulse/pulseaudio.h>

#include <algorithm>
#include <string>
#include <vector>

namespace lyrebrook {

/// A sink or a source of the server.
struct PulseDevice {
    std::string name;
    std::string description;
    std::string monitor;     // of a sink: its monitor source
    bool isMonitor = false;  // of a source: a sink's monitor
    std::uint32_t portType = PA_DEVICE_PORT_TYPE_UNKNOWN;
    pa_channel_map channels{};
    pa_cvolume volume{};
    bool muted = false;
};

/// What there is on a server, as far as a mixer is concerned with it.
struct ServerPicture {
    std::uint32_t connection = 0;  // number of the connection that told it, from 1 on
    std::string defaultSink;
    std::string defaultSource;
    std::vector<PulseDevice> sinks;
    std::vector<PulseDevice> sources;
};

inline const PulseDevice* findDevice(const std::vector<PulseDevice>& devices, const std::string& name) {
    const auto found = std::ranges::find(devices, name, &PulseDevice::name);
    return found == devices.end() ? nullptr : &*found;
}

}  // namespace lyrebrook
