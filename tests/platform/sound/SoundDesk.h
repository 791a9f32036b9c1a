#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <span>

#include "platform/sound/DirectSound8.h"
#include "platform/sound/DirectSoundCapture8.h"
#include "platform/sound/SoundSystem.h"
#include "platform/sound/SoundTransaction.h"
#include "platform/sound/cards/VirtualCard.h"
#include "support/Sound.h"

namespace lyrebrook {

/// Makes sound objects on the card that is installed.
struct SoundObjects {
    static std::unique_ptr<DirectSoundSecondaryBuffer8> buffer(const Sound& sound) {
        const auto bytes = static_cast<std::int32_t>(std::span(sound).size_bytes());
        auto made = DirectSound8(SoundSystem::engine())
                        .CreateSoundBuffer({.lFlags = 17088, .lBufferBytes = bytes, .fxFormat = trackFormat()});
        made->WriteBuffer(0, bytes, std::as_bytes(std::span(sound)), 0);
        return made;
    }

    static std::unique_ptr<DirectSoundCaptureBuffer8> capture(Frames length) {
        return DirectSoundCapture8(SoundSystem::engine())
            .CreateCaptureBuffer({.lFlags = 0, .lBufferBytes = toBytes(length), .fxFormat = trackFormat()});
    }
};

/// A hand-cranked card with its engine, as the program has it, and what was heard of it.
class SoundDesk : public SoundObjects {
  public:
    explicit SoundDesk(Frames captureLatency = 0) : card(install(captureLatency)) {}
    ~SoundDesk() { SoundSystem::remove(); }
    SoundDesk(const SoundDesk&) = delete;
    SoundDesk& operator=(const SoundDesk&) = delete;

    Sound heard;
    VirtualCard* card;
    DirectSound8 ds{SoundSystem::engine()};
    DirectSoundCapture8 dsc{SoundSystem::engine()};

  private:
    VirtualCard* install(Frames captureLatency) {
        auto owned = std::make_unique<VirtualCard>(VirtualCard::Clock::handCrank, captureLatency);
        VirtualCard* installed = owned.get();
        installed->listen([this](Frames, std::span<const StereoFrame> frames) {
            heard.insert(heard.end(), frames.begin(), frames.end());
        });
        SoundSystem::install(std::move(owned));
        return installed;
    }
};

template <class Buffer>
DSCURSORS cursors(const Buffer& buffer) {
    DSCURSORS found;
    buffer.GetCurrentPosition(found);
    return found;
}

/// What a capture holds up to its cursor.
inline Sound captured(const DirectSoundCaptureBuffer8& capture) {
    const std::int32_t bytes = cursors(capture).lWrite;
    Sound sound = silence(wholeFrames(bytes));
    capture.ReadBuffer(0, bytes, std::as_writable_bytes(std::span(sound)), 0);
    return sound;
}

inline Sound content(const DirectSoundSecondaryBuffer8& buffer, Frames length) {
    Sound sound = silence(length);
    buffer.ReadBuffer(0, 0, std::as_writable_bytes(std::span(sound)), DSBLOCK_ENTIREBUFFER);
    return sound;
}

}  // namespace lyrebrook
