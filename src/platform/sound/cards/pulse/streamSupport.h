#pragma once

#include <pulse/pulseaudio.h>

#include <chrono>
#include <optional>

#include "platform/sound/cards/pulse/CardTime.h"

namespace lyrebrook {

/// The one format as the server names it.
pa_sample_spec streamFormat();

/// Length of a buffer in the server's bytes.
std::uint32_t bufferBytes(std::chrono::milliseconds length);

/// Where a stream stood when its server was asked last.
struct StreamSight {
    CardMoment at;
    double position = 0;
};

/// The frame of a playback stream that was sounding. Nothing when the server has not told yet.
std::optional<StreamSight> playbackSight(pa_stream& stream);

/// The frame of a record stream that was being taken, which for a sink's monitor is the one that was sounding.
std::optional<StreamSight> recordSight(pa_stream& stream);

}  // namespace lyrebrook
