#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>

#include "platform/sound/BufferDescriptions.h"
#include "platform/sound/CaptureTape.h"
#include "platform/sound/SoundEngine.h"

namespace lyrebrook {

class DirectSoundSecondaryBuffer8;

/// Sound from the card's input, laid down from the frame that sounded when `Start` took effect. The program's thread
/// only; may be destroyed while it runs. All its memory is taken, and touched, when it is made. What the input lost is
/// silence of the same length, so that later sound keeps its place.
class DirectSoundCaptureBuffer8 {
  public:
    DirectSoundCaptureBuffer8(std::shared_ptr<SoundEngine> engine, Frames length);
    ~DirectSoundCaptureBuffer8();
    DirectSoundCaptureBuffer8(const DirectSoundCaptureBuffer8&) = delete;
    DirectSoundCaptureBuffer8& operator=(const DirectSoundCaptureBuffer8&) = delete;

    /// From the start of the buffer: 0 runs once and stops when full, 1 loops. Does nothing while running.
    void Start(std::int32_t flags);

    /// The same, and keeps where a playing buffer stood on the very frame that this one starts with.
    void startBeside(const DirectSoundSecondaryBuffer8& playing);

    /// Byte of that buffer; nothing before the card has come to the start, and where there was no such buffer.
    std::optional<std::int32_t> startedBeside() const;

    /// The cursor stays. One that runs once first waits, for a moment, for what has sounded but not arrived yet.
    void Stop();

    /// Both cursors tell the byte up to which sound may be read; a full buffer that ran once tells its size.
    void GetCurrentPosition(DSCURSORS& cursors) const;

    /// Frames that the input lost since the last start. They are silence.
    Frames missed() const { return tape_->missed(); }

    /// RuntimeError for a range outside the buffer, or for too small a `buffer`.
    void ReadBuffer(std::int32_t start, std::int32_t size, std::span<std::byte> buffer, std::int32_t flags) const;

  private:
    void start(EngineCommand command);
    void keepSource(bool keep);
    Frames position() const;
    bool running() const;

    std::shared_ptr<SoundEngine> engine_;
    std::unique_ptr<CaptureTape> tape_;
    std::uint32_t ticket_ = 0;
    bool started_ = false;
    bool looping_ = false;
    bool keepsSource_ = false;
    std::uint32_t startTicket_ = 0;
    Frames stoppedAt_ = 0;
};

}  // namespace lyrebrook
