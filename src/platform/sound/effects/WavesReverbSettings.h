#pragma once

#include <atomic>

namespace lyrebrook {

/// The four settings of the reverb, under the names the product gives them.
struct DSFXWAVESREVERB {
    float fInGain = 0.0F;             ///< dB, -96 to 0: gain of all that comes in
    float fReverbMix = 0.0F;          ///< dB, -96 to 0: level of the reverb against the untouched sound
    float fReverbTime = 1000.0F;      ///< ms, 0.001 to 3000: until the tail has fallen by 60 dB
    float fHighFreqRTRatio = 0.001F;  ///< 0.001 to 0.999: the time at the top of the range, as a part of fReverbTime

    friend bool operator==(const DSFXWAVESREVERB&, const DSFXWAVESREVERB&) = default;
};

/// What crosses from the program's thread to a sounding reverb. One thread stores, any thread loads, nobody waits.
/// Each value crosses by itself, so a reader may meet a half-stored record: the reverb glides to whatever it reads and
/// reads again at the next block.
class WavesReverbSettings {
  public:
    WavesReverbSettings() noexcept { assign({}); }

    /// RuntimeError `invalidProcedureCall` when a value is outside its range, or not a number; then nothing changes.
    void store(const DSFXWAVESREVERB& record);
    DSFXWAVESREVERB load() const noexcept;

  private:
    void assign(const DSFXWAVESREVERB& record) noexcept;

    std::atomic<float> inGain_;
    std::atomic<float> reverbMix_;
    std::atomic<float> reverbTime_;
    std::atomic<float> highFreqRTRatio_;
    static_assert(std::atomic<float>::is_always_lock_free);
};

}  // namespace lyrebrook
