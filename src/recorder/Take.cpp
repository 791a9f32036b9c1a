#include "recorder/Take.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "platform/base/Numbers.h"
#include "platform/sound/SoundSystem.h"
#include "platform/sound/SoundTransaction.h"
#include "recorder/soundBuffers.h"
#include "recorder/waveLength.h"

namespace lyrebrook {
namespace {

/// Bytes of a buffer, from and up to.
struct Range {
    std::int32_t from;
    std::int32_t to;
};

/// Copies between buffers by way of a small block that stays in the processor's cache, so that a long track needs no
/// second copy of itself in memory.
class Splice {
  public:
    explicit Splice(DirectSoundSecondaryBuffer8& target) : target_(target), block_(blockBytes) {}

    template <class Source>
    void copy(const Source& source, Range range, std::int32_t target) {
        while (range.from < range.to) {
            const std::int32_t size = std::min(blockBytes, range.to - range.from);
            source.ReadBuffer(range.from, size, block_, 0);
            target_.WriteBuffer(target, size, block_, 0);
            range.from += size;
            target += size;
        }
    }

  private:
    static constexpr std::int32_t blockBytes = 1 << 18;

    DirectSoundSecondaryBuffer8& target_;
    std::vector<std::byte> block_;
};

}  // namespace

void Take::CreateRecordBuffer(DirectSoundCapture8& capture, float seconds) {
    stop();
    recordBuffer_.reset();
    recordBuffer_ = capture.CreateCaptureBuffer(captureDescription(seconds));
}

void Take::placeAtCursor(const Tracks& tracks) {
    recordStart_ = tracks.playCursor(tracks.longestTrack());
}

void Take::punchIn(const Tracks& tracks, int armedTrack) {
    placeAtCursor(tracks);
    const SoundTransaction together(SoundSystem::engine());
    tracks.trackBuffer(armedTrack).Stop();
    recordBuffer_->startBeside(tracks.trackBuffer(tracks.longestTrack()));
}

/// The card may have gone on between a look at the cursor and the start; it tells where it really was.
std::int32_t Take::recordStart() const {
    return recordBuffer_ ? recordBuffer_->startedBeside().value_or(recordStart_) : recordStart_;
}

std::int32_t Take::capturedBytes() const {
    if (!recordBuffer_) return 0;
    DSCURSORS cursors;
    recordBuffer_->GetCurrentPosition(cursors);
    return cursors.lWrite;
}

std::unique_ptr<DirectSoundSecondaryBuffer8> Take::GetSoundBufferFromCapture(DirectSound8& ds, const Tracks& tracks,
                                                                             int track) const {
    stop();
    const std::int32_t captured = capturedBytes();
    if (captured == 0) return nullptr;
    const std::int32_t start = recordStart();
    const std::int32_t takeEnd = toInt32(static_cast<double>(start) + captured);
    const std::int32_t newLength = std::max(takeEnd, getWaveLength(track));
    auto merged = ds.CreateSoundBuffer(trackBufferDescription(newLength));
    Splice splice(*merged);
    if (tracks.trackExists(track)) {
        const DirectSoundSecondaryBuffer8& old = tracks.trackBuffer(track);
        const std::int32_t oldEnd = std::min(tracks.soundBytes(track), newLength);
        splice.copy(old, {0, std::min(start, oldEnd)}, 0);
        splice.copy(old, {takeEnd, oldEnd}, takeEnd);
    }
    splice.copy(*recordBuffer_, {0, captured}, start);
    return merged;
}

void Take::stop() const {
    if (recordBuffer_) recordBuffer_->Stop();
}

}  // namespace lyrebrook
