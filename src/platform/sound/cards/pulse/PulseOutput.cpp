#include "platform/sound/cards/pulse/PulseOutput.h"

#include <algorithm>
#include <utility>

namespace lyrebrook {
namespace {

constexpr std::chrono::milliseconds pauseBetweenAttempts{300};

/// A server that asks for no sound for so long doesn't play.
constexpr std::chrono::milliseconds longestSilenceOfServer(bool hasPlayed) {
    return std::chrono::milliseconds(hasPlayed ? 500 : 250);
}

/// Longer than any sink needs for the silence that it plays first.
constexpr std::chrono::seconds longestWaking{5};

/// How far the clock mixes ahead of what sounds, about as far as a stream does.
constexpr double clockLead = framesPerSecond / 50.0;

constexpr std::chrono::milliseconds longestLength{320};
constexpr std::chrono::milliseconds settlingTime{500};
constexpr std::chrono::milliseconds oneMoment{20};

pa_buffer_attr bufferOf(std::chrono::milliseconds length) {
    constexpr auto serversChoice = static_cast<std::uint32_t>(-1);
    return {.maxlength = serversChoice,
            .tlength = bufferBytes(length),
            .prebuf = 0,
            .minreq = bufferBytes(length / 4),
            .fragsize = serversChoice};
}

}  // namespace

void PulseOutput::begin(CardMoment now) {
    sounding_.restart(now, static_cast<double>(mixer_.mixed()));
}

void PulseOutput::keepUp(pa_context* server, CardMoment now) {
    if (stream_ != nullptr) watch();
    if (streaming_ && now - requested_ > longestSilenceOfServer(hasBegun())) standStill(now);
    if (stream_ == nullptr && server != nullptr && now - tried_ > pauseBetweenAttempts) open(*server, now);
    if (!streaming_) goOnByTheClock(now);
}

void PulseOutput::close() {
    stream_.reset();
    streaming_ = false;
}

std::uint32_t PulseOutput::sink() const {
    const bool there = stream_ != nullptr && pa_stream_get_state(stream_.get()) == PA_STREAM_READY;
    return there ? pa_stream_get_device_index(stream_.get()) : PA_INVALID_INDEX;
}

void PulseOutput::open(pa_context& server, CardMoment now) {
    tried_ = now;
    written_ = 0;
    gapDue_ = 0;
    leftBehind_ = false;
    const pa_sample_spec format = streamFormat();
    stream_.reset(pa_stream_new(&server, "Song", &format, nullptr));
    if (stream_ == nullptr) return;
    pa_stream_set_write_callback(
        stream_.get(),
        [](pa_stream*, std::size_t bytes, void* self) { static_cast<PulseOutput*>(self)->takeRequest(bytes); }, this);
    pa_stream_set_latency_update_callback(
        stream_.get(), [](pa_stream*, void* self) { static_cast<PulseOutput*>(self)->takeTiming(); }, this);
    pa_stream_set_underflow_callback(
        stream_.get(), [](pa_stream*, void* self) { static_cast<PulseOutput*>(self)->takeUnderrun(); }, this);
    const pa_buffer_attr buffer = bufferOf(length_);
    constexpr auto flags = static_cast<pa_stream_flags_t>(PA_STREAM_INTERPOLATE_TIMING | PA_STREAM_AUTO_TIMING_UPDATE |
                                                          PA_STREAM_ADJUST_LATENCY);
    if (pa_stream_connect_playback(stream_.get(), nullptr, &buffer, flags, nullptr, nullptr) < 0) stream_.reset();
}

void PulseOutput::watch() {
    if (leftBehind_ || !PA_STREAM_IS_GOOD(pa_stream_get_state(stream_.get()))) close();
}

void PulseOutput::takeRequest(std::size_t bytes) {
    const CardMoment now = CardClock::now();
    std::size_t frames = bytes / bytesPerFrame;
    if (!streaming_) frames = startStream(frames, now);
    const Frames skipped = std::exchange(gapDue_, 0);
    base_ -= skipped;
    requested_ = now;
    for (Frames gap = skipped; frames > 0; gap = 0) {
        const std::size_t written = write(frames, gap);
        if (written == 0) return;
        frames -= written;
    }
}

/// Frames written behind a gap, as many as the server gave room for.
std::size_t PulseOutput::write(std::size_t frames, Frames gap) {
    void* room = nullptr;
    std::size_t bytes = frames * bytesPerFrame;
    if (pa_stream_begin_write(stream_.get(), &room, &bytes) < 0 || room == nullptr) return 0;
    frames = std::min(frames, bytes / bytesPerFrame);
    mixer_.mix({static_cast<StereoFrame*>(room), frames});
    pa_stream_write(stream_.get(), room, frames * bytesPerFrame, nullptr, gap * bytesPerFrame, PA_SEEK_RELATIVE);
    written_ += gap + static_cast<Frames>(frames);
    return frames;
}

/// A server that stood still for a while may ask for all that it missed. The timeline went on meanwhile, so that much
/// is skipped; tells how many frames are still wanted.
std::size_t PulseOutput::startStream(std::size_t requested, CardMoment now) {
    const auto wanted = std::min(requested, static_cast<std::size_t>(bufferFrames()));
    streaming_ = true;
    gapDue_ += static_cast<Frames>(requested - wanted);
    base_ = mixer_.mixed() - written_;
    started_ = now;
    byTheClock_ = {now, sounding_.at(now)};
    sounding_.restart(now, byTheClock_.position);
    told_ = {};
    return wanted;
}

/// A stream that has played and then stood still may stay silent, or play on too late for ever; a new one doesn't. One
/// that has hardly begun is waited for, because some sinks have seconds of silence to play first. The timeline doesn't
/// wait for those.
void PulseOutput::standStill(CardMoment now) {
    streaming_ = false;
    if (hasBegun()) {
        leftBehind_ = true;
    } else {
        sounding_.restart(now, byTheClock_.position + framesIn(now - byTheClock_.at));
    }
}

bool PulseOutput::wakingUp(CardMoment now) const {
    return stream_ != nullptr && !leftBehind_ && written_ > 0 && now - started_ < longestWaking;
}

void PulseOutput::goOnByTheClock(CardMoment now) {
    const double due = sounding_.at(now) + clockLead;
    mixer_.drop(static_cast<Frames>(due) - mixer_.mixed());
}

void PulseOutput::askTiming() {
    if (streaming_) forget(pa_stream_update_timing_info(stream_.get(), nullptr, nullptr));
}

void PulseOutput::takeTiming() {
    if (!streaming_) return;
    const auto sight = playbackSight(*stream_);
    if (!sight) return;
    told_ = {sight->at, static_cast<double>(base_) + sight->position};
    sounding_.see(told_.at, told_.position);
}

double PulseOutput::soundingAtLastRound(CardMoment moment) const {
    const bool sameRound = streaming_ && std::chrono::abs(moment - told_.at) < oneMoment;
    return sameRound ? told_.position + framesIn(moment - told_.at) : sounding_.at(moment);
}

/// A stream has nothing to play before its first frames come; that is no fault of the buffer's length.
void PulseOutput::takeUnderrun() {
    const CardMoment now = CardClock::now();
    if (!streaming_ || now - started_ < settlingTime) return;
    ++underruns_;
    if (now - lastUnderrun_ < settlingTime || length_ >= longestLength) return;
    lastUnderrun_ = now;
    length_ *= 2;
    const pa_buffer_attr buffer = bufferOf(length_);
    forget(pa_stream_set_buffer_attr(stream_.get(), &buffer, nullptr, nullptr));
}

}  // namespace lyrebrook
