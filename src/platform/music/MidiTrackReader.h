#pragma once

#include "platform/music/ByteReader.h"
#include "platform/music/MidiSong.h"

#include <cstdint>
#include <vector>

namespace lyrebrook {

/// What the tracks of a file hold together, at times in ticks.
struct MidiTracks {
    struct Event {
        std::uint64_t tick;
        MidiEvent event;
    };
    struct Tempo {
        std::uint64_t tick;
        std::uint32_t microsecondsPerQuarter;
    };

    std::vector<Event> events;
    std::vector<Tempo> tempos;
    std::vector<std::uint8_t> exclusives;
    std::uint64_t lastTick = 0;
};

/// Reads one track chunk and adds it to the others. Stops without complaint where the track ends or is torn.
class MidiTrackReader {
  public:
    MidiTrackReader(std::span<const std::uint8_t> track, std::uint64_t startTick, MidiTracks& tracks)
        : bytes_(track), tick_(startTick), tracks_(tracks) {}

    void read();

  private:
    bool readOne();
    bool readMeta();
    bool readExclusive(bool startsMessage);
    bool readChannelEvent(std::uint8_t status);

    ByteReader bytes_;
    std::uint64_t tick_;
    std::uint8_t runningStatus_ = 0;
    MidiTracks& tracks_;
};

}  // namespace lyrebrook
