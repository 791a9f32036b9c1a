#pragma once

#include <cstdint>

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

inline constexpr std::int32_t DSCBSTART_LOOPING = 1;
inline constexpr std::int32_t DSBSTATUS_PLAYING = 1;
inline constexpr std::int32_t DSBLOCK_ENTIREBUFFER = 2;

}  // namespace lyrebrook
