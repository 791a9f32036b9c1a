#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/sound/SoundFormat.h"

namespace lyrebrook {

struct DSBUFFERDESC {
    std::int32_t lFlags = 0;
    std::int32_t lBufferBytes = 0;
    WAVEFORMATEX fxFormat = {};
};

struct DSCBUFFERDESC {
    std::int32_t lFlags = 0;
    std::int32_t lBufferBytes = 0;
    WAVEFORMATEX fxFormat = {};
};

/// Bytes from the start of a buffer. For a capture `lWrite` is the byte up to which sound may be read.
struct DSCURSORS {
    std::int32_t lPlay = 0;
    std::int32_t lWrite = 0;
};

struct DSEFFECTDESC {
    std::int32_t lFlags = 0;
    std::string guidDSFXClass;
};

/// The one effect that a buffer can be given, and the interface that its object has.
inline constexpr std::string_view GUID_DSFX_WAVES_REVERB = "GUID_DSFX_WAVES_REVERB";
inline constexpr std::string_view IID_DirectSoundFXWavesReverb = "IID_DirectSoundFXWavesReverb";

/// What became of an effect that was asked for.
inline constexpr std::int32_t DSFXR_LOCSOFTWARE = 2;
inline constexpr std::int32_t DSFXR_UNKNOWN = 5;

inline constexpr std::int32_t DSCBSTART_LOOPING = 1;
inline constexpr std::int32_t DSBSTATUS_PLAYING = 1;
inline constexpr std::int32_t DSBLOCK_ENTIREBUFFER = 2;

}  // namespace lyrebrook
