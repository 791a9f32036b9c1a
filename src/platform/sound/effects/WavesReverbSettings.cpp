#include "platform/sound/effects/WavesReverbSettings.h"

#include "platform/base/RuntimeError.h"

namespace lyrebrook {
namespace {

// False for a NaN as well.
bool isWithin(float value, float lowest, float highest) noexcept {
    return value >= lowest && value <= highest;
}

bool isValid(const DSFXWAVESREVERB& record) noexcept {
    return isWithin(record.fInGain, -96.0F, 0.0F) && isWithin(record.fReverbMix, -96.0F, 0.0F) &&
           isWithin(record.fReverbTime, 0.001F, 3000.0F) && isWithin(record.fHighFreqRTRatio, 0.001F, 0.999F);
}

}  // namespace

void WavesReverbSettings::store(const DSFXWAVESREVERB& record) {
    if (!isValid(record))
        throw RuntimeError(RuntimeErrorNumber::invalidProcedureCall, "Invalid procedure call or argument");
    assign(record);
}

void WavesReverbSettings::assign(const DSFXWAVESREVERB& record) noexcept {
    inGain_.store(record.fInGain, std::memory_order_relaxed);
    reverbMix_.store(record.fReverbMix, std::memory_order_relaxed);
    reverbTime_.store(record.fReverbTime, std::memory_order_relaxed);
    highFreqRTRatio_.store(record.fHighFreqRTRatio, std::memory_order_relaxed);
}

DSFXWAVESREVERB WavesReverbSettings::load() const noexcept {
    return {.fInGain = inGain_.load(std::memory_order_relaxed),
            .fReverbMix = reverbMix_.load(std::memory_order_relaxed),
            .fReverbTime = reverbTime_.load(std::memory_order_relaxed),
            .fHighFreqRTRatio = highFreqRTRatio_.load(std::memory_order_relaxed)};
}

}  // namespace lyrebrook
