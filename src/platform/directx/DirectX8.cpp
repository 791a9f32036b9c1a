#include "platform/directx/DirectX8.h"

#include "platform/base/RuntimeError.h"
#include "platform/music/MusicNotifications.h"
#include "platform/sound/SoundSystem.h"

namespace lyrebrook {
namespace {

std::shared_ptr<SoundEngine> engineOf(std::string_view deviceId) {
    if (!deviceId.empty()) {
        throw RuntimeError(RuntimeErrorNumber::deviceUnavailable,
                           "There is no sound device \"" + std::string(deviceId) + "\"");
    }
    return SoundSystem::engine();
}

}  // namespace

std::unique_ptr<DirectSound8> DirectX8::DirectSoundCreate(std::string_view deviceId) {
    return std::make_unique<DirectSound8>(engineOf(deviceId));
}

std::unique_ptr<DirectSoundCapture8> DirectX8::DirectSoundCaptureCreate(std::string_view deviceId) {
    return std::make_unique<DirectSoundCapture8>(engineOf(deviceId));
}

std::unique_ptr<DirectMusicPerformance8> DirectX8::DirectMusicPerformanceCreate() {
    return std::make_unique<DirectMusicPerformance8>();
}

std::unique_ptr<DirectMusicLoader8> DirectX8::DirectMusicLoaderCreate() {
    return std::make_unique<DirectMusicLoader8>();
}

std::int32_t DirectX8::CreateEvent(DirectXEvent8& sink) {
    return MusicNotifications::ofProcess().createEvent([&sink](std::int32_t eventId) { sink.DXCallback(eventId); });
}

void DirectX8::DestroyEvent(std::int32_t eventId) {
    MusicNotifications::ofProcess().destroyEvent(eventId);
}

void DirectX8::deliverPendingEvents() {
    MusicNotifications::ofProcess().deliver();
}

}  // namespace lyrebrook
