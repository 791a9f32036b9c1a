#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

/// A bar has sixteen steps. A pattern is a text with one character to the step: '.' rests, a digit is a hit of that
/// loudness (1 to 9) or the chord tone to play (0 to 3), a letter what the line in `Groove` says.
using Pattern = std::string_view;

struct Chord {
    std::int32_t bass;                  // MIDI keys
    std::array<std::int32_t, 4> tones;  // from below
};

struct Groove {
    Pattern kick, snare, rim, hat, openHat, shaker, crash;
    Pattern bass;   // r root, f fifth below or above, o octave
    Pattern picks;  // chord tones of the guitar
    Pattern keys;   // chords of the electric piano
    std::int32_t padLoudness;
};

struct Bar {
    Chord firstHalf, secondHalf;
    const Groove* groove;
};

/// A note of the vibraphone's line, which answers where a singer would breathe.
struct Answer {
    std::int32_t bar, step, steps, key, velocity;
};

struct TempoChange {
    std::int32_t bar, step;
    double beatsPerMinute;
};

struct Arrangement {
    std::vector<Bar> bars;
    std::vector<Answer> answers;
    std::vector<TempoChange> tempos;
};

/// The song that ships with the program: "Demo 1", in D major, a minute for a singer to try.
Arrangement demoSong();
