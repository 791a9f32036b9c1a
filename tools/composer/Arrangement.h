#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace lyrebrook {

/// A quarter has four steps. A pattern is a text with one character to the step of a bar: '.' rests, a digit is a hit
/// of that loudness (1 to 9) or the chord tone to play (0 to 3), a letter what the line in `Groove` says. An empty one
/// rests for the whole bar.
using Pattern = std::string_view;

struct Chord {
    std::int32_t bass;                  // MIDI keys
    std::array<std::int32_t, 4> tones;  // from below
};

struct Groove {
    Pattern kick = {}, snare = {}, rim = {}, hat = {}, openHat = {}, shaker = {}, crash = {};
    Pattern bass = {};   // r root, f fifth below or above, o octave
    Pattern picks = {};  // chord tones of the plucked strings
    Pattern keys = {};   // chords of the keyboard
    std::int32_t padLoudness;
};

struct Bar {
    Chord firstHalf, secondHalf;
    const Groove* groove;
};

constexpr Bar whole(const Chord& chord, const Groove& groove) {
    return {chord, chord, &groove};
}

struct Instrument {
    std::string_view name;
    std::uint8_t program;  // from 0
    std::uint8_t volume, pan, reverb, chorus;
};

struct Band {
    Instrument drums, bass, picks, keys, pad, lead;
};

/// A note of the lead instrument.
struct LeadNote {
    std::int32_t bar, step, steps, key, velocity;
};

struct TempoChange {
    std::int32_t bar, step;
    double beatsPerMinute;
};

/// A piece of music in a major key, in bars of quarters.
struct Arrangement {
    std::string_view title;
    std::int8_t sharps;  // of the key; flats below 0
    std::int32_t stepsPerBar;
    Band band;
    std::vector<Bar> bars;
    std::vector<LeadNote> notes;
    std::vector<TempoChange> tempos;
};

}  // namespace lyrebrook
