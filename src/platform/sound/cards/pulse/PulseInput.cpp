#include "platform/sound/cards/pulse/PulseInput.h"

#include <algorithm>

#include "platform/sound/cards/pulse/streamSupport.h"

namespace lyrebrook {
namespace {

constexpr std::chrono::milliseconds pauseBetweenAttempts{300};
constexpr std::chrono::milliseconds fragment{10};

/// Some devices take their time to wake up.
constexpr std::chrono::seconds longestWait{3};
constexpr std::chrono::milliseconds arrivingWithin{500};
constexpr std::chrono::milliseconds longestPause{250};

}  // namespace

void PulseInput::select(const RecordingSource& source) {
    if (source == source_) return;
    source_ = source;
    close();
}

void PulseInput::keepUp(pa_context& server, bool wanted, CardMoment now, SoundCardClient& client) {
    if (!wanted || source_.kind == RecordingSource::Kind::ownOutput) {
        clock_.rest();
        return close();
    }
    findMonitor(server);
    if (stream_ != nullptr && !stillGood(now)) close();
    if (stream_ == nullptr && !target().empty() && now - tried_ > pauseBetweenAttempts) open(server, now);
    if (stream_ != nullptr && lead_.settled()) clock_.deliver(lead_.value(), client);
}

void PulseInput::close() {
    stream_.reset();
}

bool PulseInput::arriving(CardMoment now) const {
    return now - arrived_ < arrivingWithin;
}

/// The output moves to another sink when its own goes, or when a person moves it; the monitor goes along.
void PulseInput::findMonitor(pa_context& server) {
    const std::uint32_t sink = output_.sink();
    if (sink == monitoredSink_) return;
    monitoredSink_ = sink;
    monitor_.clear();
    if (sink == PA_INVALID_INDEX) return;
    forget(pa_context_get_sink_info_by_index(
        &server, sink,
        [](pa_context*, const pa_sink_info* found, int, void* self) {
            if (found != nullptr) static_cast<PulseInput*>(self)->monitor_ = found->monitor_source_name;
        },
        this));
}

void PulseInput::open(pa_context& server, CardMoment now) {
    tried_ = now;
    opened_ = target();
    clock_.restart();
    measureAnew();
    const pa_sample_spec format = streamFormat();
    stream_.reset(pa_stream_new(&server, "Recording", &format, nullptr));
    if (stream_ == nullptr) return;
    pa_stream_set_read_callback(
        stream_.get(), [](pa_stream*, std::size_t, void* self) { static_cast<PulseInput*>(self)->takeFrames(); }, this);
    constexpr auto serversChoice = static_cast<std::uint32_t>(-1);
    const pa_buffer_attr buffer = {.maxlength = serversChoice,
                                   .tlength = serversChoice,
                                   .prebuf = serversChoice,
                                   .minreq = serversChoice,
                                   .fragsize = bufferBytes(fragment)};
    constexpr auto flags = static_cast<pa_stream_flags_t>(PA_STREAM_INTERPOLATE_TIMING | PA_STREAM_AUTO_TIMING_UPDATE |
                                                          PA_STREAM_ADJUST_LATENCY | PA_STREAM_DONT_MOVE);
    if (pa_stream_connect_record(stream_.get(), opened_.c_str(), &buffer, flags) < 0) stream_.reset();
}

bool PulseInput::stillGood(CardMoment now) const {
    const pa_stream_state_t state = pa_stream_get_state(stream_.get());
    if (!PA_STREAM_IS_GOOD(state) || opened_ != target() || now - std::max(tried_, arrived_) > longestWait)
        return false;
    return state != PA_STREAM_READY || opened_ == pa_stream_get_device_name(stream_.get());
}

/// A server or a device that stood still has lost an unknown length of sound.
void PulseInput::measureAnew() {
    clock_.interrupt();
    lead_.restart();
    asked_ = 0;
}

void PulseInput::takeFrames() {
    const CardMoment now = CardClock::now();
    if (now - arrived_ > longestPause) measureAnew();
    arrived_ = now;
    const void* sound = nullptr;
    std::size_t bytes = 0;
    while (pa_stream_peek(stream_.get(), &sound, &bytes) >= 0 && bytes > 0) {
        const std::size_t frames = bytes / bytesPerFrame;
        if (sound != nullptr) {
            clock_.take({static_cast<const StereoFrame*>(sound), frames});
        } else {
            clock_.lose(static_cast<Frames>(frames));
        }
        pa_stream_drop(stream_.get());
    }
    askTiming(arrived_);
}

/// Often at first, then now and then; both streams together and when sound has just moved, so that both are told as
/// they stood at the same round of the server.
void PulseInput::askTiming(CardMoment now) {
    constexpr std::int32_t quick = 10;
    constexpr std::chrono::milliseconds pause{100};
    if (asked_ >= quick && now - lastAsked_ < pause) return;
    ++asked_;
    lastAsked_ = now;
    output_.askTiming();
    forget(pa_stream_update_timing_info(
        stream_.get(), [](pa_stream* stream, int, void* self) { static_cast<PulseInput*>(self)->takeTiming(*stream); },
        this));
}

/// The answer may come when its stream has been closed.
void PulseInput::takeTiming(pa_stream& stream) {
    if (&stream != stream_.get()) return;
    const auto sight = recordSight(stream);
    if (sight) lead_.see(output_.soundingAtLastRound(sight->at) - sight->position);
}

}  // namespace lyrebrook
