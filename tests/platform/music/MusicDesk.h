#pragma once

#include "MidiBytes.h"
#include "platform/directx/DirectX8.h"
#include "platform/sound/SoundDesk.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <functional>

namespace lyrebrook {

/// A form with a performance on a hand-cranked card, and a folder for its files.
class MusicDesk final : public SoundDesk, public DirectXEvent8 {
  public:
    explicit MusicDesk(Frames captureLatency = 0) : SoundDesk(captureLatency) {
        performance->InitAudio(0, DMUS_AUDIOF_ALL, DMUS_APATH_DYNAMIC_STEREO, 128);
        performance->AddNotificationType(DMUS_NOTIFY_ON_SEGMENT);
        event = dx.CreateEvent(*this);
        performance->SetNotificationHandle(event);
    }
    ~MusicDesk() { dx.DestroyEvent(event); }

    std::filesystem::path file(const std::string& name, const std::string& content) const {
        std::ofstream(folder / name, std::ios::binary) << content;
        return folder / name;
    }

    std::unique_ptr<DirectMusicSegment8> segment(const std::string& content) const {
        return dxLoader->LoadSegment(file("segment", content));
    }

    /// Ten milliseconds at a time, as the form's timer would.
    void crank(double seconds) {
        for (Frames left = std::llround(seconds * framesPerSecond); left > 0; left -= 441) {
            card->advance(std::min<Frames>(left, 441));
            DirectX8::deliverPendingEvents();
        }
    }

    /// What sounded until the segment's end was told; at most two minutes.
    Sound playToTheEnd(const DirectMusicSegment8& segment) {
        heard.clear();
        performance->PlaySegmentEx(segment);
        for (const int before = ends; ends == before && heard.size() < 120 * framesPerSecond;) crank(0.01);
        return heard;
    }

    void DXCallback(std::int32_t eventId) override {
        EXPECT_EQ(eventId, event);
        DMUS_NOTIFICATION_PMSG message;
        EXPECT_TRUE(performance->GetNotificationPMSG(message));
        EXPECT_EQ(message.lNotificationOption, DMUS_NOTIFICATION_SEGEND);
        EXPECT_FALSE(performance->GetNotificationPMSG(message));
        ++ends;
        if (onEnd) onEnd();
    }

    DirectX8 dx;
    std::unique_ptr<DirectMusicPerformance8> performance = dx.DirectMusicPerformanceCreate();
    std::unique_ptr<DirectMusicLoader8> dxLoader = dx.DirectMusicLoaderCreate();
    std::int32_t event = 0;
    int ends = 0;
    std::function<void()> onEnd;
    const TemporaryFolder temporary;
    const std::filesystem::path& folder = temporary.path;
};

/// Seconds at which a sound begins after at least a tenth of a second without one.
inline std::vector<double> beginnings(const Sound& sound) {
    constexpr std::int16_t audible = 600;
    std::vector<double> found;
    Frames last = -framesPerSecond;
    for (Frames i = 0; i < std::ssize(sound); ++i) {
        if (std::abs(sound[static_cast<std::size_t>(i)].left) < audible) continue;
        if (i - last > framesPerSecond / 10) found.push_back(static_cast<double>(i) / framesPerSecond);
        last = i;
    }
    return found;
}

}  // namespace lyrebrook
