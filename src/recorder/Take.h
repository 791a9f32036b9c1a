#pragma once

#include <cstdint>
#include <memory>

#include "platform/sound/DirectSound8.h"
#include "platform/sound/DirectSoundCapture8.h"
#include "recorder/Tracks.h"

namespace lyrebrook {

/// A stretch of sound being captured, and the byte of the song where it will lie. Nothing touches the disk before its
/// end; then it is merged with the old sound of its track in memory. Program's thread.
class Take {
  public:
    /// Makes room for a take of that length, in place of an earlier capture. Not started yet.
    void CreateRecordBuffer(DirectSoundCapture8& capture, float seconds);

    /// The take's place is where the longest track stands.
    void placeAtCursor(const Tracks& tracks);

    /// Punches in while the song runs: silences the armed track and starts the capture, on one frame. Where the longest
    /// track stands on that frame is the take's place.
    void punchIn(const Tracks& tracks, int armedTrack);

    DirectSoundCaptureBuffer8* recordBuffer() const { return recordBuffer_.get(); }
    std::int32_t recordStart() const;
    std::int32_t capturedBytes() const;

    /// The track with the take laid over it: the take's bytes are the take's, all others are the old ones, and what was
    /// there in neither is silence. Nothing when the capture, which stops, holds no sound. RuntimeError `overflow` when
    /// a 32-bit integer can't count the bytes, `outOfMemory`.
    std::unique_ptr<DirectSoundSecondaryBuffer8> GetSoundBufferFromCapture(DirectSound8& ds, const Tracks& tracks,
                                                                           int track) const;

    void stop() const;
    void release() { recordBuffer_.reset(); }

  private:
    std::unique_ptr<DirectSoundCaptureBuffer8> recordBuffer_;
    std::int32_t recordStart_ = 0;
};

}  // namespace lyrebrook
