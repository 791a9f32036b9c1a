#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <span>
#include <vector>

#include "platform/sound/DirectSoundCaptureBuffer8.h"
#include "platform/winmm/WaveInConversion.h"
#include "platform/winmm/waveIn.h"

class QTimer;

namespace lyrebrook {

/// An open input: fills its caller's buffers one after the other from the card's input, and sends each back with a
/// message. A timer of the program's thread moves the sound; a thread that stands still for two seconds loses some.
class WaveInput {
  public:
    /// RuntimeError when memory is short.
    WaveInput(HWAVEIN handle, const WAVEFORMATEX& format, MessagePost post);
    ~WaveInput();
    WaveInput(const WaveInput&) = delete;
    WaveInput& operator=(const WaveInput&) = delete;

    void add(WAVEHDR& header);
    bool empty() const { return queue_.empty(); }
    void start();

    /// The buffer that is being filled goes back as it is.
    void stop();

    /// Stops, and all buffers go back.
    void reset();

    void tell(std::int32_t message, const WAVEHDR* header = nullptr) const;

  private:
    void moveSound();
    void fillBuffers(std::span<const std::byte> sound);
    void giveBack();

    HWAVEIN handle_;
    MessagePost post_;
    WaveInConversion conversion_;
    DirectSoundCaptureBuffer8 capture_;
    std::deque<WAVEHDR*> queue_;
    bool running_ = false;
    Frames readPlace_ = 0;
    std::vector<StereoFrame> frames_;
    std::unique_ptr<QTimer> timer_;
};

}  // namespace lyrebrook
