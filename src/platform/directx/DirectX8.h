#pragma once

#include "platform/directx/DirectXEvent8.h"
#include "platform/music/DirectMusicLoader8.h"
#include "platform/music/DirectMusicPerformance8.h"
#include "platform/sound/DirectSound8.h"
#include "platform/sound/DirectSoundCapture8.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace lyrebrook {

/// Makes the sound and music objects. The form's thread only. What it makes may outlive it. An empty device identifier
/// is the default device, the only one. RuntimeError when there is no card.
class DirectX8 {
  public:
    std::unique_ptr<DirectSound8> DirectSoundCreate(std::string_view deviceId);
    std::unique_ptr<DirectSoundCapture8> DirectSoundCaptureCreate(std::string_view deviceId);
    std::unique_ptr<DirectMusicPerformance8> DirectMusicPerformanceCreate();
    std::unique_ptr<DirectMusicLoader8> DirectMusicLoaderCreate();

    /// A handle, never 0. The sink must outlive the event.
    std::int32_t CreateEvent(DirectXEvent8& sink);
    void DestroyEvent(std::int32_t eventId);

    /// Calls the sinks of what has happened on the card so far, without waiting for the event loop's next turn.
    static void deliverPendingEvents();
};

}  // namespace lyrebrook
