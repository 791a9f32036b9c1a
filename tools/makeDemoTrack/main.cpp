// Writes the song that ships with the program as a standard MIDI file: makeDemoTrack FILE.
#include <algorithm>
#include <fstream>
#include <iostream>
#include <span>

#include "Arrangement.h"
#include "MidiWriter.h"

namespace {

constexpr std::int32_t stepsPerBar = 16;
constexpr std::int32_t ticksPerStep = 120;
constexpr std::int16_t ticksPerQuarter = 4 * ticksPerStep;
constexpr std::int32_t halfBar = stepsPerBar / 2;

struct Instrument {
    std::string_view name;
    std::uint8_t channel;
    std::uint8_t program;  // from 0
    std::uint8_t volume, pan, reverb, chorus;
};

constexpr Instrument drums{"Drums", 9, 0, 124, 64, 30, 0};
constexpr Instrument bass{"Bass", 1, 33, 114, 64, 8, 0};
constexpr Instrument guitar{"Guitar", 2, 24, 116, 40, 44, 20};
constexpr Instrument keys{"Electric piano", 3, 4, 88, 90, 36, 30};
constexpr Instrument pad{"Organ", 4, 19, 78, 64, 60, 0};
constexpr Instrument vibraphone{"Vibraphone", 5, 11, 127, 74, 64, 0};

MidiTrack trackOf(const Instrument& instrument) {
    enum Controller : std::uint8_t { volume = 7, pan = 10, reverb = 91, chorus = 93 };
    MidiTrack track(instrument.name);
    track.program(instrument.channel, instrument.program);
    track.controller(instrument.channel, volume, instrument.volume);
    track.controller(instrument.channel, pan, instrument.pan);
    track.controller(instrument.channel, reverb, instrument.reverb);
    track.controller(instrument.channel, chorus, instrument.chorus);
    return track;
}

std::int32_t tickAt(std::int32_t bar, std::int32_t step) {
    return (bar * stepsPerBar + step) * ticksPerStep;
}

std::int32_t loudness(char digit) {
    return 14 * (digit - '0');
}

// Calls play(bar, step, character, steps to the next character) for all that a pattern doesn't rest on.
template <class Play>
void forEachHit(const Arrangement& song, Pattern Groove::*pattern, Play play) {
    for (std::int32_t bar = 0; bar < std::ssize(song.bars); ++bar) {
        const Pattern steps = song.bars[static_cast<std::size_t>(bar)].groove->*pattern;
        for (std::size_t step = 0; step < steps.size(); ++step) {
            if (steps[step] == '.') continue;
            const std::size_t next = std::min(steps.find_first_not_of('.', step + 1), steps.size());
            play(bar, static_cast<std::int32_t>(step), steps[step], static_cast<std::int32_t>(next - step));
        }
    }
}

const Chord& chordAt(const Arrangement& song, std::int32_t bar, std::int32_t step) {
    const Bar& here = song.bars[static_cast<std::size_t>(bar)];
    return step < halfBar ? here.firstHalf : here.secondHalf;
}

MidiTrack conductor(const Arrangement& song) {
    MidiTrack track("Demo 1");
    track.commonTime();
    track.majorKey(2);
    for (const TempoChange& each : song.tempos) track.tempo(tickAt(each.bar, each.step), each.beatsPerMinute);
    return track;
}

MidiTrack drumTrack(const Arrangement& song) {
    struct Drum {
        Pattern Groove::*pattern;
        std::int32_t key;
    };
    constexpr Drum kit[] = {{&Groove::kick, 36},    {&Groove::snare, 38},  {&Groove::rim, 37},  {&Groove::hat, 42},
                            {&Groove::openHat, 46}, {&Groove::shaker, 70}, {&Groove::crash, 49}};
    MidiTrack track = trackOf(drums);
    for (const Drum& drum : kit) {
        forEachHit(song, drum.pattern, [&](std::int32_t bar, std::int32_t step, char hit, std::int32_t) {
            track.note(drums.channel, {tickAt(bar, step), ticksPerStep, drum.key, loudness(hit)});
        });
    }
    return track;
}

MidiTrack bassTrack(const Arrangement& song) {
    MidiTrack track = trackOf(bass);
    forEachHit(song, &Groove::bass, [&](std::int32_t bar, std::int32_t step, char tone, std::int32_t steps) {
        const std::int32_t root = chordAt(song, bar, step).bass;
        const std::int32_t fifth = root > 40 ? root - 5 : root + 7;
        const std::int32_t key = tone == 'o' ? root + 12 : tone == 'f' ? fifth : root;
        const std::int32_t velocity = step % 8 == 0 ? 92 : 78;
        track.note(bass.channel, {tickAt(bar, step), steps * ticksPerStep - 20, key, velocity});
    });
    return track;
}

// A picked string rings until the guitar plays it again or the chord changes.
MidiTrack guitarTrack(const Arrangement& song) {
    MidiTrack track = trackOf(guitar);
    forEachHit(song, &Groove::picks, [&](std::int32_t bar, std::int32_t step, char tone, std::int32_t) {
        const Pattern picks = song.bars[static_cast<std::size_t>(bar)].groove->picks;
        const auto here = static_cast<std::size_t>(step);
        const auto again = static_cast<std::int32_t>(std::min<std::size_t>(picks.find(tone, here + 1), stepsPerBar));
        const std::int32_t until = step < halfBar ? std::min(again, halfBar) : again;
        const std::int32_t key = chordAt(song, bar, step).tones[static_cast<std::size_t>(tone - '0')];
        const std::int32_t velocity = step % 8 == 0 ? 84 : step % 4 == 0 ? 74 : 64;
        track.note(guitar.channel, {tickAt(bar, step), (until - step) * ticksPerStep, key, velocity});
    });
    return track;
}

// The depth is the bass's, the rest of the chord the guitar's.
std::span<const std::int32_t> upperTwo(const Chord& chord) {
    return std::span(chord.tones).last(2);
}

MidiTrack keysTrack(const Arrangement& song) {
    MidiTrack track = trackOf(keys);
    forEachHit(song, &Groove::keys, [&](std::int32_t bar, std::int32_t step, char hit, std::int32_t steps) {
        for (const std::int32_t key : upperTwo(chordAt(song, bar, step))) {
            track.note(keys.channel, {tickAt(bar, step), steps * ticksPerStep - 30, key, loudness(hit)});
        }
    });
    return track;
}

// A chord that lasts through both halves of a bar is held.
MidiTrack padTrack(const Arrangement& song) {
    MidiTrack track = trackOf(pad);
    for (std::int32_t half = 0; half < 2 * std::ssize(song.bars); ++half) {
        const std::int32_t bar = half / 2;
        const std::int32_t step = half % 2 * halfBar;
        const Chord& chord = chordAt(song, bar, step);
        const bool tied = step > 0 && chord.tones == chordAt(song, bar, 0).tones;
        if (tied) continue;
        const bool lastsOn = step == 0 && chord.tones == chordAt(song, bar, halfBar).tones;
        const std::int32_t length = (lastsOn ? stepsPerBar : halfBar) * ticksPerStep;
        const std::int32_t velocity = song.bars[static_cast<std::size_t>(bar)].groove->padLoudness;
        for (const std::int32_t key : upperTwo(chord))
            track.note(pad.channel, {tickAt(bar, step), length, key, velocity});
    }
    return track;
}

MidiTrack vibraphoneTrack(const Arrangement& song) {
    MidiTrack track = trackOf(vibraphone);
    for (const Answer& each : song.answers) {
        const MidiTrack::Note note{tickAt(each.bar, each.step), each.steps * ticksPerStep, each.key, each.velocity};
        track.note(vibraphone.channel, note);
    }
    return track;
}

std::string render(const Arrangement& song) {
    const std::int32_t end = tickAt(static_cast<std::int32_t>(song.bars.size()), 0);
    return midiFile({conductor(song), drumTrack(song), bassTrack(song), guitarTrack(song), keysTrack(song),
                     padTrack(song), vibraphoneTrack(song)},
                    ticksPerQuarter, end);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: makeDemoTrack FILE\n";
        return 2;
    }
    std::ofstream file(arguments[1], std::ios::binary);
    file << render(demoSong());
    file.close();
    if (!file) std::cerr << arguments[1] << ": can't be written\n";
    return file ? 0 : 1;
}
