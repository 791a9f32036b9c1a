#include "MidiWriter.h"

#include <algorithm>
#include <cmath>

namespace lyrebrook {
namespace {

std::string bigEndian(std::uint32_t value, int bytes) {
    std::string text;
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8) text += static_cast<char>(value >> shift & 0xFFU);
    return text;
}

// Seven bits to the byte, all but the last with the top bit set.
std::string variableLength(std::uint32_t value) {
    std::string text(1, static_cast<char>(value & 0x7FU));
    while ((value >>= 7U) != 0) text.insert(0, 1, static_cast<char>(0x80U | (value & 0x7FU)));
    return text;
}

std::string channelEvent(std::uint8_t kind, std::uint8_t channel, std::int32_t first) {
    return {static_cast<char>(kind | channel), static_cast<char>(first)};
}

std::string chunkOf(std::string_view name, const std::string& content) {
    return std::string(name) + bigEndian(static_cast<std::uint32_t>(content.size()), 4) + content;
}

constexpr char trackName = 0x03;
constexpr char endOfTrack = 0x2F;
constexpr char setTempo = 0x51;
constexpr char timeSignature = 0x58;
constexpr char keySignature = 0x59;

}  // namespace

MidiTrack::MidiTrack(std::string_view name) {
    meta(0, trackName, name);
}

void MidiTrack::meta(std::int32_t tick, char kind, std::string_view content) {
    const auto length = variableLength(static_cast<std::uint32_t>(content.size()));
    events_.push_back({tick, std::string{'\xFF', kind} + length + std::string(content)});
}

void MidiTrack::tempo(std::int32_t tick, double beatsPerMinute) {
    meta(tick, setTempo, bigEndian(static_cast<std::uint32_t>(std::lround(60e6 / beatsPerMinute)), 3));
}

void MidiTrack::beatsPerBar(std::uint8_t quarters) {
    meta(0, timeSignature, std::string{static_cast<char>(quarters), 2, 24, 8});
}

void MidiTrack::majorKey(std::int8_t sharps) {
    meta(0, keySignature, std::string{static_cast<char>(sharps), 0});
}

void MidiTrack::program(std::uint8_t channel, std::uint8_t number) {
    events_.push_back({0, channelEvent(0xC0, channel, number)});
}

void MidiTrack::controller(std::uint8_t channel, std::uint8_t number, std::uint8_t value) {
    events_.push_back({0, channelEvent(0xB0, channel, number) + static_cast<char>(value)});
}

void MidiTrack::note(std::uint8_t channel, const Note& note) {
    const auto velocity = static_cast<char>(std::clamp(note.velocity, 1, 127));
    events_.push_back({note.tick, channelEvent(0x90, channel, note.key) + velocity});
    events_.push_back({note.tick + note.length, channelEvent(0x80, channel, note.key) + '\x40'});
}

std::string MidiTrack::chunk(std::int32_t endTick) const {
    // Of events at one tick a key's release comes first, so that a repeated note isn't cut off.
    const auto isRelease = [](const Event& each) {
        return (static_cast<unsigned char>(each.bytes[0]) & 0xF0U) == 0x80;
    };
    std::vector<Event> inOrder = events_;
    std::stable_sort(inOrder.begin(), inOrder.end(), [&](const Event& a, const Event& b) {
        return a.tick != b.tick ? a.tick < b.tick : isRelease(a) && !isRelease(b);
    });
    inOrder.push_back({std::max(endTick, inOrder.back().tick), {'\xFF', endOfTrack, 0}});
    std::string content;
    std::int32_t now = 0;
    for (const Event& each : inOrder) {
        content += variableLength(static_cast<std::uint32_t>(each.tick - now)) + each.bytes;
        now = each.tick;
    }
    return chunkOf("MTrk", content);
}

std::string midiFile(const std::vector<MidiTrack>& tracks, std::int16_t ticksPerQuarter, std::int32_t endTick) {
    constexpr std::uint32_t tracksSoundTogether = 1;
    const auto count = static_cast<std::uint32_t>(tracks.size());
    std::string file = chunkOf("MThd", bigEndian(tracksSoundTogether, 2) + bigEndian(count, 2) +
                                           bigEndian(static_cast<std::uint32_t>(ticksPerQuarter), 2));
    for (const MidiTrack& each : tracks) file += each.chunk(endTick);
    return file;
}

}  // namespace lyrebrook
