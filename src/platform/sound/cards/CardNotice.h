#pragma once

#include <cstdint>

namespace lyrebrook {

/// What a person should know about the card at present.
enum class CardNotice : std::uint8_t {
    none,
    outputLost,  // nothing is heard, because the sound server or its output is away
    inputLost    // a recording gets no sound, because its source is away
};

}  // namespace lyrebrook
