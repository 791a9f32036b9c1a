#pragma once

#include "platform/music/MidiSong.h"

#include <cstdint>
#include <span>

namespace lyrebrook {

/// Whether `content` begins like a standard MIDI file, bare or inside a RIFF file.
bool looksLikeMidi(std::span<const std::uint8_t> content);

/// Reads a standard MIDI file of any kind. Nothing in it is believed: a length that points past the end is cut to what
/// is there, and a track is played up to its first byte that makes no sense. RuntimeError when not one note is left.
MidiSong readMidiFile(std::span<const std::uint8_t> content);

}  // namespace lyrebrook
