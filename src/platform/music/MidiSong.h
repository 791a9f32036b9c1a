#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace lyrebrook {

/// One thing for the synthesizer to do, at a time counted from the start at the file's own tempo.
struct MidiEvent {
    double seconds = 0;
    std::uint8_t status = 0;  // with its channel; 0xF0 for a system exclusive message
    std::uint8_t first = 0;   // the data bytes
    std::uint8_t second = 0;
    std::uint32_t exclusive = 0;        // where the message stands in `exclusives`
    std::uint32_t exclusiveLength = 0;  // without the 0xF0 and 0xF7 around it
};

/// A standard MIDI file as it is played: all tracks in one row, in the order of their times, tempo changes worked in.
struct MidiSong {
    std::vector<MidiEvent> events;
    std::vector<std::uint8_t> exclusives;
    double seconds = 0;  // to the end of the longest track

    std::span<const std::uint8_t> exclusiveOf(const MidiEvent& event) const {
        return std::span(exclusives).subspan(event.exclusive, event.exclusiveLength);
    }
};

}  // namespace lyrebrook
