#include "platform/music/MidiFile.h"

#include "platform/base/RuntimeError.h"
#include "platform/music/MidiTrackReader.h"

#include <algorithm>

namespace lyrebrook {
namespace {

// A pause that a file has after its last event is part of the music, but not if it is a wrong number.
constexpr double longestClosingPause = 15;
constexpr std::uint32_t microsecondsPerQuarterAtFirst = 500000;
constexpr std::uint32_t sequentialTracks = 2;

[[noreturn]] void failToRead(const std::string& why) {
    throw RuntimeError(RuntimeErrorNumber::deviceInputOutput, "The MIDI file can't be played: " + why);
}

// A MIDI file may come inside a RIFF file, as the content of its chunk "data".
std::span<const std::uint8_t> unwrapped(std::span<const std::uint8_t> content) {
    ByteReader riff(content);
    if (!riff.takeName("RIFF")) return content;
    riff.upTo(4);
    if (!riff.takeName("RMID")) return content;
    while (!riff.atEnd()) {
        const bool found = riff.takeName("data");
        if (!found) riff.upTo(4);
        const std::uint32_t length = riff.littleEndian32().value_or(0);
        const auto chunk = riff.upTo(length + std::size_t{length % 2});
        if (found) return chunk;
    }
    failToRead("its container is empty.");
}

struct Division {
    double secondsPerTick = 0;  // 0: ticks are parts of a quarter note, whose length is the tempo
    double ticksPerQuarter = 0;
};

// The top bit tells that ticks divide the frames of a film: the upper byte is their negative count a second.
Division divisionOf(std::uint32_t word) {
    if (word < 0x8000) return {.ticksPerQuarter = static_cast<double>(word)};
    const std::uint32_t framesASecond = 256 - (word >> 8U);
    const double rate = framesASecond == 29 ? 30000.0 / 1001.0 : framesASecond;
    const std::uint32_t ticksPerFrame = word & 0xFFU;
    return {.secondsPerTick = ticksPerFrame == 0 ? 0 : 1 / (rate * ticksPerFrame)};
}

/// Turns ticks into seconds. Has to be asked in the order of the ticks.
class TickClock {
  public:
    TickClock(Division division, const std::vector<MidiTracks::Tempo>& tempos) : division_(division), tempos_(tempos) {}

    double secondsAt(std::uint64_t tick) {
        while (next_ < tempos_.size() && tempos_[next_].tick <= tick) {
            advanceTo(tempos_[next_].tick);
            tempo_ = tempos_[next_++].microsecondsPerQuarter;
        }
        advanceTo(tick);
        return seconds_;
    }

  private:
    void advanceTo(std::uint64_t tick) {
        const double secondsPerTick =
            division_.secondsPerTick > 0 ? division_.secondsPerTick : tempo_ / 1e6 / division_.ticksPerQuarter;
        seconds_ += static_cast<double>(tick - tick_) * secondsPerTick;
        tick_ = tick;
    }

    Division division_;
    const std::vector<MidiTracks::Tempo>& tempos_;
    std::size_t next_ = 0;
    std::uint64_t tick_ = 0;
    double seconds_ = 0;
    double tempo_ = microsecondsPerQuarterAtFirst;
};

template <class Timed>
void sortByTick(std::vector<Timed>& row) {
    std::stable_sort(row.begin(), row.end(), [](const Timed& a, const Timed& b) { return a.tick < b.tick; });
}

MidiSong timed(MidiTracks tracks, Division division) {
    sortByTick(tracks.events);
    sortByTick(tracks.tempos);
    TickClock clock(division, tracks.tempos);
    MidiSong song;
    song.exclusives = std::move(tracks.exclusives);
    song.events.reserve(tracks.events.size());
    for (const MidiTracks::Event& each : tracks.events) {
        song.events.push_back(each.event);
        song.events.back().seconds = clock.secondsAt(each.tick);
    }
    song.seconds = std::min(clock.secondsAt(tracks.lastTick), song.events.back().seconds + longestClosingPause);
    return song;
}

MidiTracks readTracks(ByteReader file, bool oneAfterTheOther) {
    MidiTracks tracks;
    while (!file.atEnd()) {
        const bool isTrack = file.takeName("MTrk");
        if (!isTrack) file.upTo(4);
        const auto content = file.upTo(file.bigEndian(4).value_or(0));
        if (isTrack) MidiTrackReader(content, oneAfterTheOther ? tracks.lastTick : 0, tracks).read();
    }
    return tracks;
}

bool isNote(const MidiTracks::Event& each) {
    return (each.event.status & 0xF0U) == 0x90 && each.event.second > 0;
}

}  // namespace

bool looksLikeMidi(std::span<const std::uint8_t> content) {
    ByteReader bytes(content);
    if (bytes.takeName("MThd")) return true;
    if (!bytes.takeName("RIFF")) return false;
    bytes.upTo(4);
    return bytes.takeName("RMID");
}

MidiSong readMidiFile(std::span<const std::uint8_t> content) {
    ByteReader file(unwrapped(content));
    if (!file.takeName("MThd")) failToRead("it is something else.");
    ByteReader header(file.upTo(file.bigEndian(4).value_or(0)));
    const std::uint32_t format = header.bigEndian(2).value_or(0);
    header.upTo(2);
    const Division division = divisionOf(header.bigEndian(2).value_or(0));
    if (division.secondsPerTick <= 0 && division.ticksPerQuarter <= 0) failToRead("its header is damaged.");
    MidiTracks tracks = readTracks(file, format == sequentialTracks);
    if (std::none_of(tracks.events.begin(), tracks.events.end(), isNote)) failToRead("it holds no notes.");
    return timed(std::move(tracks), division);
}

}  // namespace lyrebrook
