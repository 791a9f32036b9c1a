#pragma once

#include "platform/music/DirectMusicSegment8.h"
#include "platform/music/MusicNotifications.h"
#include "platform/music/SoundFont.h"
#include "platform/sound/SoundVoice.h"

#include <atomic>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace lyrebrook {

class SegmentSource;

inline constexpr std::int32_t DMUS_NOTIFY_ON_SEGMENT = 5;
inline constexpr std::int32_t DMUS_NOTIFICATION_SEGEND = 1;
inline constexpr std::int32_t DMUS_AUDIOF_ALL = 63;
inline constexpr std::int32_t DMUS_APATH_DYNAMIC_STEREO = 8;
inline constexpr std::int32_t DMUS_SEGF_DEFAULT = 16384;

struct DMUS_NOTIFICATION_PMSG {
    std::int32_t lNotificationType = 0;
    std::int32_t lNotificationOption = 0;
};

/// The way that segments take to the card. The program has the default one only.
class DirectMusicAudioPath8 {};

/// Plays one segment at a time on the process's engine and tells its end. The form's thread only; what it plays is
/// rendered on the card's thread and freed here. Destroying it stops the sound.
class DirectMusicPerformance8 final : private MusicNotifier {
  public:
    explicit DirectMusicPerformance8(std::vector<std::filesystem::path> soundFonts = systemSoundFonts());
    ~DirectMusicPerformance8();

    /// Takes the process's engine and loads the instruments, once for the process. RuntimeError without a card, or when
    /// no SoundFont is installed; its text then names the package. Any number of channels and all flags are given.
    void InitAudio(std::int64_t hwnd, std::int32_t flags, std::int32_t defaultPathType, std::int32_t channels);

    /// Off: a MIDI segment whose instruments were unloaded can't be played.
    void SetMasterAutoDownload(bool on) { autoDownload_ = on; }

    void AddNotificationType(std::int32_t type);
    void RemoveNotificationType(std::int32_t type);

    /// The event of `DirectX8::CreateEvent` that is signalled once for each message, on the form's thread.
    void SetNotificationHandle(std::int32_t eventId) { eventId_ = eventId; }

    /// Takes the oldest message. The one there is tells that a segment ended by itself: its last frame, ring-out and
    /// reverb included, has sounded and running captures have received it. A segment that was stopped has none.
    bool GetNotificationPMSG(DMUS_NOTIFICATION_PMSG& message);

    /// Plays from the start, at once, in place of what was playing. `startTime` other than 0 is a RuntimeError.
    void PlaySegmentEx(const DirectMusicSegment8& segment, std::int32_t flags = DMUS_SEGF_DEFAULT,
                       std::int32_t startTime = 0);

    /// Silences the segment at once and drops its message if one is waiting. Nothing happens when it isn't playing.
    void StopEx(const DirectMusicSegment8& segment, std::int32_t time = 0, std::int32_t flags = 0);

    /// The factor on the speed of MIDI, 0 (holds the music) to 3; acts at once, on what plays and what will.
    void SetMasterTempo(float factor);

    const DirectMusicAudioPath8& GetDefaultAudioPath() const { return defaultPath_; }

    /// Stops the sound and drops all messages. InitAudio starts anew.
    void CloseDown();

  private:
    struct Sounding {
        std::shared_ptr<SegmentMusic> music;
        std::unique_ptr<SoundVoice> voice;
        SegmentSource* source;  // the voice's
    };
    struct Message {
        DMUS_NOTIFICATION_PMSG content;
        std::shared_ptr<SegmentMusic> music;
        bool signalled;
    };

    void notice() override;
    std::int32_t takeSignal() override;
    bool hasSignal() const override;
    bool listens() const override { return sounding_.has_value(); }
    void dropMessagesOf(const SegmentMusic& music);

    std::vector<std::filesystem::path> soundFonts_;
    std::shared_ptr<SoundEngine> engine_;
    std::shared_ptr<std::atomic<float>> tempo_ = std::make_shared<std::atomic<float>>(1.0F);
    std::optional<Sounding> sounding_;
    std::deque<Message> messages_;
    std::int32_t eventId_ = 0;
    bool segmentNotifications_ = false;
    bool autoDownload_ = true;
    DirectMusicAudioPath8 defaultPath_;
};

}  // namespace lyrebrook
