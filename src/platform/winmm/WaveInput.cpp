#include "platform/winmm/WaveInput.h"

#include <QTimer>
#include <algorithm>
#include <utility>

#include "platform/sound/SoundSystem.h"

namespace lyrebrook {
namespace {

constexpr Frames tapeFrames = Frames{2} * framesPerSecond;
constexpr std::chrono::milliseconds betweenMoves{10};

}  // namespace

WaveInput::WaveInput(HWAVEIN handle, const WAVEFORMATEX& format, MessagePost post)
    : handle_(handle),
      post_(std::move(post)),
      conversion_(format),
      capture_(SoundSystem::engine(), tapeFrames),
      timer_(std::make_unique<QTimer>()) {
    QObject::connect(timer_.get(), &QTimer::timeout, timer_.get(), [this] { moveSound(); });
}

WaveInput::~WaveInput() = default;

/// What came before is not this buffer's.
void WaveInput::add(WAVEHDR& header) {
    if (running_) moveSound();
    header.dwBytesRecorded = 0;
    header.dwFlags = (header.dwFlags & ~WHDR_DONE) | WHDR_INQUEUE;
    queue_.push_back(&header);
}

void WaveInput::start() {
    if (std::exchange(running_, true)) return;
    readPlace_ = 0;
    conversion_.restart();
    capture_.Start(DSCBSTART_LOOPING);
    timer_->start(betweenMoves);
}

void WaveInput::stop() {
    if (!running_) return;
    moveSound();
    running_ = false;
    timer_->stop();
    capture_.Stop();
    if (!queue_.empty() && queue_.front()->dwBytesRecorded > 0) giveBack();
}

void WaveInput::reset() {
    stop();
    while (!queue_.empty()) giveBack();
}

void WaveInput::tell(std::int32_t message, const WAVEHDR* header) const {
    post_({message, static_cast<WPARAM>(handle_), reinterpret_cast<LPARAM>(header)});
}

void WaveInput::moveSound() {
    DSCURSORS cursors;
    capture_.GetCurrentPosition(cursors);
    const Frames end = wholeFrames(cursors.lWrite);
    while (readPlace_ != end) {
        const Frames count = (readPlace_ < end ? end : tapeFrames) - readPlace_;
        frames_.resize(static_cast<std::size_t>(count));
        capture_.ReadBuffer(toBytes(readPlace_), toBytes(count), std::as_writable_bytes(std::span(frames_)), 0);
        readPlace_ = (readPlace_ + count) % tapeFrames;
        fillBuffers(conversion_.convert(frames_));
    }
}

/// Sound for which there is no buffer is dropped.
void WaveInput::fillBuffers(std::span<const std::byte> sound) {
    while (!sound.empty() && !queue_.empty()) {
        WAVEHDR& header = *queue_.front();
        const auto room = static_cast<std::size_t>(header.dwBufferLength - header.dwBytesRecorded);
        const auto part = sound.first(std::min(room, sound.size()));
        std::ranges::copy(part, header.lpData + header.dwBytesRecorded);
        header.dwBytesRecorded += static_cast<std::int32_t>(part.size());
        sound = sound.subspan(part.size());
        if (header.dwBytesRecorded == header.dwBufferLength) giveBack();
    }
}

void WaveInput::giveBack() {
    WAVEHDR& header = *queue_.front();
    queue_.pop_front();
    header.dwFlags = (header.dwFlags & ~WHDR_INQUEUE) | WHDR_DONE;
    tell(MM_WIM_DATA, &header);
}

}  // namespace lyrebrook
