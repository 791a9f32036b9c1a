#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lyrebrook {

/// One track of a standard MIDI file being written. Events may come in any order; ticks count from the song's start.
class MidiTrack {
  public:
    explicit MidiTrack(std::string_view name);

    void tempo(std::int32_t tick, double beatsPerMinute);
    void beatsPerBar(std::uint8_t quarters);
    void majorKey(std::int8_t sharps);
    void program(std::uint8_t channel, std::uint8_t number);
    void controller(std::uint8_t channel, std::uint8_t number, std::uint8_t value);

    struct Note {
        std::int32_t tick;
        std::int32_t length;
        std::int32_t key;
        std::int32_t velocity;
    };
    void note(std::uint8_t channel, const Note& note);

    /// The chunk with its header, ending at `endTick`.
    std::string chunk(std::int32_t endTick) const;

  private:
    struct Event {
        std::int32_t tick;
        std::string bytes;
    };
    void meta(std::int32_t tick, char kind, std::string_view content);

    std::vector<Event> events_;
};

/// A file of kind 1: tracks that sound together.
std::string midiFile(const std::vector<MidiTrack>& tracks, std::int16_t ticksPerQuarter, std::int32_t endTick);

}  // namespace lyrebrook
