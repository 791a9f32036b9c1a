#include "platform/music/DirectMusicPerformance8.h"

#include "platform/base/RuntimeError.h"
#include "platform/music/SegmentMusic.h"
#include "platform/sound/SoundSystem.h"

#include <algorithm>

namespace lyrebrook {
namespace {

constexpr float fastestTempo = 3;

void require(bool condition, const char* description) {
    if (!condition) throw RuntimeError(RuntimeErrorNumber::invalidProcedureCall, description);
}

}  // namespace

DirectMusicPerformance8::DirectMusicPerformance8(std::vector<std::filesystem::path> soundFonts)
    : soundFonts_(std::move(soundFonts)) {
    MusicNotifications::ofProcess().add(*this);
}

DirectMusicPerformance8::~DirectMusicPerformance8() {
    MusicNotifications::ofProcess().remove(*this);
}

void DirectMusicPerformance8::InitAudio(std::int64_t, std::int32_t, std::int32_t defaultPathType, std::int32_t) {
    require(defaultPathType == DMUS_APATH_DYNAMIC_STEREO, "The only audio path is the stereo one.");
    loadSoundFont(soundFonts_);
    engine_ = SoundSystem::engine();
}

void DirectMusicPerformance8::AddNotificationType(std::int32_t type) {
    if (type == DMUS_NOTIFY_ON_SEGMENT) segmentNotifications_ = true;
}

void DirectMusicPerformance8::RemoveNotificationType(std::int32_t type) {
    if (type != DMUS_NOTIFY_ON_SEGMENT) return;
    segmentNotifications_ = false;
    messages_.clear();
}

bool DirectMusicPerformance8::GetNotificationPMSG(DMUS_NOTIFICATION_PMSG& message) {
    if (messages_.empty()) return false;
    message = messages_.front().content;
    messages_.pop_front();
    return true;
}

void DirectMusicPerformance8::PlaySegmentEx(const DirectMusicSegment8& segment, std::int32_t, std::int32_t startTime) {
    require(engine_ != nullptr, "InitAudio comes before PlaySegmentEx.");
    require(startTime == 0, "A segment can only be played at once.");
    const std::shared_ptr<SegmentMusic>& music = segment.music();
    if (autoDownload_) music->loadInstruments();
    require(music->instrumentsReady(), "The segment's instruments are not loaded.");

    sounding_.reset();
    dropMessagesOf(*music);
    std::unique_ptr<SegmentSource> source = music->makeSource({segment.repeats(), tempo_});
    SegmentSource* const heard = source.get();
    sounding_ = Sounding{music, std::make_unique<SoundVoice>(engine_, std::move(source), music->bus()), heard};
    sounding_->voice->start();
    MusicNotifications::ofProcess().wake();
}

void DirectMusicPerformance8::StopEx(const DirectMusicSegment8& segment, std::int32_t, std::int32_t) {
    if (sounding_ && sounding_->music == segment.music()) sounding_.reset();
    dropMessagesOf(*segment.music());
}

void DirectMusicPerformance8::SetMasterTempo(float factor) {
    require(factor >= 0 && factor <= fastestTempo, "The tempo factor is from 0 to 3.");
    tempo_->store(factor, std::memory_order_relaxed);
}

void DirectMusicPerformance8::CloseDown() {
    sounding_.reset();
    messages_.clear();
    engine_.reset();
}

void DirectMusicPerformance8::notice() {
    if (!sounding_) return;
    sounding_->source->readAhead();
    if (!sounding_->voice->endedAndCaptured()) return;
    if (segmentNotifications_) {
        messages_.push_back({{DMUS_NOTIFY_ON_SEGMENT, DMUS_NOTIFICATION_SEGEND}, sounding_->music, false});
    }
    sounding_.reset();
}

bool DirectMusicPerformance8::hasSignal() const {
    return std::any_of(messages_.begin(), messages_.end(), [](const Message& each) { return !each.signalled; });
}

std::int32_t DirectMusicPerformance8::takeSignal() {
    const auto next =
        std::find_if(messages_.begin(), messages_.end(), [](const Message& each) { return !each.signalled; });
    next->signalled = true;
    return eventId_;
}

void DirectMusicPerformance8::dropMessagesOf(const SegmentMusic& music) {
    std::erase_if(messages_, [&music](const Message& each) { return each.music.get() == &music; });
}

}  // namespace lyrebrook
