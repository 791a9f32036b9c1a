#include "platform/sound/DirectSoundSecondaryBuffer8.h"

#include <algorithm>
#include <utility>

#include "platform/base/RuntimeError.h"
#include "platform/sound/BufferVoice.h"
#include "platform/sound/WaveFile.h"
#include "platform/sound/bufferChecks.h"
#include "platform/sound/effects/Reverb.h"
#include "platform/sound/mixing.h"

namespace lyrebrook {
namespace {

[[noreturn]] void refuse(const char* description) {
    throw RuntimeError(RuntimeErrorNumber::invalidProcedureCall, description);
}

SoundMemory copyOf(const SoundData& data) {
    SoundMemory copy(data.length());
    std::ranges::copy(data.frames(), copy.frames().begin());
    return copy;
}

}  // namespace

DirectSoundSecondaryBuffer8::DirectSoundSecondaryBuffer8(std::shared_ptr<SoundEngine> engine,
                                                         std::shared_ptr<SoundData> data)
    : engine_(std::move(engine)), data_(std::move(data)), voice_(std::make_unique<BufferVoice>(*data_)) {
    engine_->attach(*voice_);
}

DirectSoundSecondaryBuffer8::~DirectSoundSecondaryBuffer8() {
    engine_->detach(std::move(voice_));
    engine_->keepUntilApplied(std::move(data_));
    engine_->keepUntilApplied(std::move(effect_));
}

void DirectSoundSecondaryBuffer8::Play(std::int32_t flags) {
    if (flags != 0) refuse("A sound buffer plays once");
    if (data_->length() == 0) return;
    const Frames cursor = state().cursor;
    data_->touchAhead(cursor);
    cardMayRead_ = true;
    order(Verb::start, {.playing = true, .cursor = cursor});
}

void DirectSoundSecondaryBuffer8::Stop() {
    order(Verb::stop, {.playing = false, .cursor = state().cursor});
}

void DirectSoundSecondaryBuffer8::SetCurrentPosition(std::int32_t bytes) {
    const Frames cursor = std::min(wholeFrames(bytes), data_->length());
    data_->touchAhead(cursor);
    order(Verb::moveTo, {.playing = state().playing, .cursor = cursor});
}

void DirectSoundSecondaryBuffer8::GetCurrentPosition(DSCURSORS& cursors) const {
    const Frames cursor = state().cursor;
    data_->touchAhead(cursor);
    cursors.lPlay = cursors.lWrite = toBytes(cursor);
}

std::int32_t DirectSoundSecondaryBuffer8::GetStatus() const {
    return state().playing ? DSBSTATUS_PLAYING : 0;
}

void DirectSoundSecondaryBuffer8::SetVolume(std::int32_t hundredthsOfDecibel) {
    if (hundredthsOfDecibel == volume_) return;
    volume_ = hundredthsOfDecibel;
    applyGain();
}

void DirectSoundSecondaryBuffer8::SetPan(std::int32_t hundredthsOfDecibel) {
    if (hundredthsOfDecibel == pan_) return;
    pan_ = hundredthsOfDecibel;
    applyGain();
}

void DirectSoundSecondaryBuffer8::ReadBuffer(std::int32_t start, std::int32_t size, std::span<std::byte> buffer,
                                             std::int32_t flags) const {
    const auto sound = std::as_bytes(std::as_const(*data_).frames());
    if ((flags & DSBLOCK_ENTIREBUFFER) != 0) {
        start = 0;
        size = static_cast<std::int32_t>(std::min(sound.size(), buffer.size()));
    }
    requireRange(start, size, std::ssize(sound), buffer.size());
    const auto part = sound.subspan(static_cast<std::size_t>(start), static_cast<std::size_t>(size));
    std::ranges::copy(part, buffer.begin());
}

void DirectSoundSecondaryBuffer8::WriteBuffer(std::int32_t start, std::int32_t size, std::span<const std::byte> buffer,
                                              std::int32_t flags) {
    if ((flags & DSBLOCK_ENTIREBUFFER) != 0) {
        start = 0;
        size = toBytes(data_->length());
    }
    requireRange(start, size, toBytes(data_->length()), buffer.size());
    const auto part = buffer.first(static_cast<std::size_t>(size));
    if (cardMayRead_) {
        const auto copy = std::make_shared<SoundData>(copyOf(*data_));
        std::ranges::copy(part, std::as_writable_bytes(copy->frames()).begin() + start);
        replaceData(copy);
    } else {
        std::ranges::copy(part, std::as_writable_bytes(data_->frames()).begin() + start);
    }
}

void DirectSoundSecondaryBuffer8::SaveToFile(const std::filesystem::path& path) const {
    writeWaveFile(path, std::as_const(*data_).frames());
}

void DirectSoundSecondaryBuffer8::SetFX(std::int32_t count, std::span<const DSEFFECTDESC> effects,
                                        std::span<std::int32_t> results) {
    if (count == 0) {
        setEffect(nullptr);
        return;
    }
    if (count != 1 || effects.empty() || results.empty()) refuse("A sound buffer takes one effect");
    const bool known = effects.front().guidDSFXClass == GUID_DSFX_WAVES_REVERB;
    results.front() = known ? DSFXR_LOCSOFTWARE : DSFXR_UNKNOWN;
    if (!known) refuse("There is no such effect");
    const auto settings = std::make_shared<WavesReverbSettings>();
    setEffect(std::make_shared<Reverb>(settings));
    reverb_ = settings;
}

std::unique_ptr<DirectSoundFXWavesReverb8> DirectSoundSecondaryBuffer8::GetObjectInPath(
    std::string_view objectClass, std::int32_t index, std::string_view interfaceName) const {
    const bool reverb = objectClass == GUID_DSFX_WAVES_REVERB && interfaceName == IID_DirectSoundFXWavesReverb;
    if (!reverb || index != 0 || reverb_ == nullptr) refuse("The sound buffer has no such effect");
    return std::make_unique<DirectSoundFXWavesReverb8>(reverb_);
}

void DirectSoundSecondaryBuffer8::setEffect(std::shared_ptr<SoundEffect> effect) {
    if (state().playing) refuse("Effects can't change while the sound buffer plays");
    engine_->post({.unit = voice_.get(), .verb = Verb::setEffect, .effect = effect.get()});
    engine_->keepUntilApplied(std::exchange(effect_, std::move(effect)));
    reverb_.reset();
}

const EngineUnit& DirectSoundSecondaryBuffer8::unit() const {
    return *voice_;
}

DirectSoundSecondaryBuffer8::Shadow DirectSoundSecondaryBuffer8::state() const {
    const UnitState told = voice_->state();
    if (told.ticket != ticket_) return shadow_;
    return {.playing = told.running, .cursor = told.position};
}

/// Until the card's thread has come to the newest order, what was ordered stands for how it is.
void DirectSoundSecondaryBuffer8::order(Verb verb, Shadow expected) {
    shadow_ = expected;
    engine_->post({.unit = voice_.get(), .verb = verb, .ticket = ++ticket_, .position = expected.cursor});
}

void DirectSoundSecondaryBuffer8::applyGain() {
    engine_->post({.unit = voice_.get(), .verb = Verb::setGain, .gain = gainOf(volume_, pan_)});
}

/// For when the card's thread may be reading the sound as it is.
void DirectSoundSecondaryBuffer8::replaceData(std::shared_ptr<SoundData> data) {
    engine_->post({.unit = voice_.get(), .verb = Verb::setData, .data = data.get()});
    engine_->keepUntilApplied(std::exchange(data_, std::move(data)));
    cardMayRead_ = state().playing;
}

}  // namespace lyrebrook
