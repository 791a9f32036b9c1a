#include "backtrack/BacktrackMusic.h"

#include "platform/files/FileContent.h"

namespace lyrebrook {

void BacktrackMusic::open(std::int64_t windowHandle, DirectXEvent8& sink) {
    constexpr std::int32_t performanceChannels = 128;
    dx = std::make_unique<DirectX8>();
    perf = dx->DirectMusicPerformanceCreate();
    loader = dx->DirectMusicLoaderCreate();
    perf->InitAudio(windowHandle, DMUS_AUDIOF_ALL, DMUS_APATH_DYNAMIC_STEREO, performanceChannels);
    perf->SetMasterAutoDownload(true);
    perf->AddNotificationType(DMUS_NOTIFY_ON_SEGMENT);
    hEvent = dx->CreateEvent(sink);
    perf->SetNotificationHandle(hEvent);
}

void BacktrackMusic::load(const QString& path) {
    seg = loader->LoadSegment(nativePath(path));
}

void BacktrackMusic::close() {
    if (perf) perf->RemoveNotificationType(DMUS_NOTIFY_ON_SEGMENT);
    if (dx) dx->DestroyEvent(hEvent);
    if (seg) perf->StopEx(*seg);
    seg.reset();
    loader.reset();
    if (perf) perf->CloseDown();
    perf.reset();
}

}  // namespace lyrebrook
