#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>

#include "platform/sound/BufferDescriptions.h"
#include "platform/sound/SoundData.h"
#include "platform/sound/SoundEffect.h"
#include "platform/sound/SoundEngine.h"
#include "platform/sound/effects/DirectSoundFXWavesReverb8.h"

namespace lyrebrook {

class BufferVoice;

/// A sound in memory that plays once from its cursor on. The program's thread only; may be destroyed while it sounds.
/// Positions are bytes, rounded down to a frame. What was ordered reads back at once (`GetStatus` is 1 right after
/// `Play`), although it takes effect at the next frame to be mixed. A buffer played to its end stops and stands at 0; a
/// buffer of size 0 takes every call and is silent.
class DirectSoundSecondaryBuffer8 {
  public:
    DirectSoundSecondaryBuffer8(std::shared_ptr<SoundEngine> engine, std::shared_ptr<SoundData> data);
    ~DirectSoundSecondaryBuffer8();
    DirectSoundSecondaryBuffer8(const DirectSoundSecondaryBuffer8&) = delete;
    DirectSoundSecondaryBuffer8& operator=(const DirectSoundSecondaryBuffer8&) = delete;

    /// `flags` is 0: once. RuntimeError for anything else.
    void Play(std::int32_t flags);

    /// The cursor stays where the sound stops.
    void Stop();

    /// Outside the buffer the nearest end is taken.
    void SetCurrentPosition(std::int32_t bytes);

    /// The cursor of the next frame to be mixed.
    void GetCurrentPosition(DSCURSORS& cursors) const;
    std::int32_t GetStatus() const;

    /// Hundredths of a decibel from 0 down to -10000, which is silence; others are taken as the nearest end.
    void SetVolume(std::int32_t hundredthsOfDecibel);

    /// Hundredths of a decibel taken off the right (below 0) or the left (above 0); the ends silence that side.
    void SetPan(std::int32_t hundredthsOfDecibel);

    /// Copies `size` bytes from `start`; with flags 2 the whole buffer, as far as `buffer` holds it. RuntimeError for a
    /// range outside the sound or too small a `buffer`.
    void ReadBuffer(std::int32_t start, std::int32_t size, std::span<std::byte> buffer, std::int32_t flags) const;
    void WriteBuffer(std::int32_t start, std::int32_t size, std::span<const std::byte> buffer, std::int32_t flags);

    /// Replaces the file in one step. RuntimeError when that fails; the old file is then whole.
    void SaveToFile(const std::filesystem::path& path) const;

    /// Gives the buffer a fresh reverb (count 1) or takes it off (count 0) and tells in `results` what became of it.
    /// RuntimeError while the buffer plays, for other counts and for other effects; the buffer then keeps what it has.
    void SetFX(std::int32_t count, std::span<const DSEFFECTDESC> effects, std::span<std::int32_t> results);

    /// The reverb that the last `SetFX` gave. RuntimeError when there is none, or for another class, index or
    /// interface.
    std::unique_ptr<DirectSoundFXWavesReverb8> GetObjectInPath(std::string_view objectClass, std::int32_t index,
                                                               std::string_view interfaceName) const;

    /// What `SetFX` does, for any effect: only while stopped, else RuntimeError; null takes it off.
    void setEffect(std::shared_ptr<SoundEffect> effect);

    const EngineUnit& unit() const;

  private:
    struct Shadow {
        bool playing = false;
        Frames cursor = 0;
    };

    Shadow state() const;
    void order(Verb verb, Shadow expected);
    void applyGain();
    void replaceData(std::shared_ptr<SoundData> data);

    std::shared_ptr<SoundEngine> engine_;
    std::shared_ptr<SoundData> data_;
    std::shared_ptr<SoundEffect> effect_;
    std::shared_ptr<WavesReverbSettings> reverb_;
    std::unique_ptr<BufferVoice> voice_;
    Shadow shadow_;
    std::uint32_t ticket_ = 0;
    bool cardMayRead_ = false;
    std::int32_t volume_ = 0;
    std::int32_t pan_ = 0;
};

}  // namespace lyrebrook
