#include "platform/sound/cards/pulse/streamSupport.h"

namespace lyrebrook {
namespace {

double framesFromBytes(std::int64_t bytes) {
    return static_cast<double>(bytes) / bytesPerFrame;
}

double framesFromMicroseconds(pa_usec_t time) {
    return static_cast<double>(time) * framesPerSecond / PA_USEC_PER_SEC;
}

/// The server stamps its answers by the wall clock, which can be set; only the answer's age is taken from it.
CardMoment momentOf(const timeval& stamp) {
    timeval now{};
    pa_gettimeofday(&now);
    const bool past = pa_timeval_cmp(&stamp, &now) < 0;
    return CardClock::now() - std::chrono::microseconds(past ? pa_timeval_diff(&now, &stamp) : 0);
}

}  // namespace

pa_sample_spec streamFormat() {
    return {.format = PA_SAMPLE_S16NE, .rate = framesPerSecond, .channels = 2};
}

std::uint32_t bufferBytes(std::chrono::milliseconds length) {
    return static_cast<std::uint32_t>(length.count() * framesPerSecond / 1000 * bytesPerFrame);
}

std::optional<StreamSight> playbackSight(pa_stream& stream) {
    const pa_timing_info* told = pa_stream_get_timing_info(&stream);
    if (told == nullptr || told->read_index_corrupt != 0) return std::nullopt;
    const double position = framesFromBytes(told->read_index) - framesFromMicroseconds(told->sink_usec);
    return StreamSight{momentOf(told->timestamp), position};
}

std::optional<StreamSight> recordSight(pa_stream& stream) {
    const pa_timing_info* told = pa_stream_get_timing_info(&stream);
    if (told == nullptr || told->write_index_corrupt != 0) return std::nullopt;
    const double position = framesFromBytes(told->write_index) + framesFromMicroseconds(told->source_usec) -
                            framesFromMicroseconds(told->sink_usec);
    return StreamSight{momentOf(told->timestamp), position};
}

}  // namespace lyrebrook
