#include "platform/music/MidiTrackReader.h"

namespace lyrebrook {
namespace {

constexpr std::uint8_t metaStatus = 0xFF;
constexpr std::uint8_t exclusiveStatus = 0xF0;
constexpr std::uint8_t exclusiveRestStatus = 0xF7;
constexpr std::uint8_t endOfTrack = 0x2F;
constexpr std::uint8_t setTempo = 0x51;

bool hasOneDataByte(std::uint8_t status) {
    return (status & 0xF0U) == 0xC0 || (status & 0xF0U) == 0xD0;
}

// Retuning makes the synthesizer allocate memory, which the card's thread must not do.
bool retunes(std::span<const std::uint8_t> message) {
    return message.size() > 2 && (message[0] == 0x7E || message[0] == 0x7F) && message[2] == 0x08;
}

}  // namespace

void MidiTrackReader::read() {
    while (!bytes_.atEnd() && readOne()) {
    }
    tracks_.lastTick = std::max(tracks_.lastTick, tick_);
}

bool MidiTrackReader::readOne() {
    const auto delta = bytes_.variableLength();
    const auto next = bytes_.peek();
    if (!delta || !next) return false;
    tick_ += *delta;
    if (*next >= 0x80) bytes_.byte();
    switch (*next) {
        case metaStatus:
            return readMeta();
        case exclusiveStatus:
        case exclusiveRestStatus:
            return readExclusive(*next == exclusiveStatus);
        default:
            if (*next > exclusiveStatus) return false;
            if (*next >= 0x80) runningStatus_ = *next;
            return runningStatus_ != 0 && readChannelEvent(runningStatus_);
    }
}

bool MidiTrackReader::readMeta() {
    const auto kind = bytes_.byte();
    const auto length = bytes_.variableLength();
    if (!kind || !length || *kind == endOfTrack) return false;
    ByteReader content(bytes_.upTo(*length));
    if (*kind != setTempo || *length != 3) return true;
    const auto tempo = content.bigEndian(3);
    if (tempo && *tempo > 0) tracks_.tempos.push_back({tick_, *tempo});
    return true;
}

bool MidiTrackReader::readExclusive(bool startsMessage) {
    const auto length = bytes_.variableLength();
    if (!length) return false;
    auto message = bytes_.upTo(*length);
    if (!startsMessage || message.empty() || message.back() != exclusiveRestStatus) return true;
    message = message.first(message.size() - 1);
    if (retunes(message)) return true;
    MidiEvent event;
    event.status = exclusiveStatus;
    event.exclusive = static_cast<std::uint32_t>(tracks_.exclusives.size());
    event.exclusiveLength = static_cast<std::uint32_t>(message.size());
    tracks_.exclusives.insert(tracks_.exclusives.end(), message.begin(), message.end());
    tracks_.events.push_back({tick_, event});
    return true;
}

bool MidiTrackReader::readChannelEvent(std::uint8_t status) {
    MidiEvent event;
    event.status = status;
    const auto first = bytes_.byte();
    const auto second = hasOneDataByte(status) ? std::optional<std::uint8_t>(0) : bytes_.byte();
    if (!first || !second || *first >= 0x80 || *second >= 0x80) return false;
    event.first = *first;
    event.second = *second;
    tracks_.events.push_back({tick_, event});
    return true;
}

}  // namespace lyrebrook
