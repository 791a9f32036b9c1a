#pragma once

#include <cstdint>
#include <string>

namespace lyrebrook {

/// What a card of a sound server records.
struct RecordingSource {
    enum class Kind : std::uint8_t {
        cardOutput,  // everything that the card plays, other programs too, at the card's volume
        ownOutput,   // what this program plays, untouched, frame for frame
        named        // a source of the server, by its name
    };

    Kind kind = Kind::cardOutput;
    std::string name;

    friend bool operator==(const RecordingSource&, const RecordingSource&) = default;
};

}  // namespace lyrebrook
