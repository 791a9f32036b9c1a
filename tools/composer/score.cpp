#include "score.h"

#include <algorithm>
#include <span>

#include "MidiWriter.h"

namespace lyrebrook {
namespace {

constexpr std::int32_t ticksPerStep = 120;
constexpr std::int32_t stepsPerQuarter = 4;
constexpr std::int16_t ticksPerQuarter = stepsPerQuarter * ticksPerStep;

enum Channel : std::uint8_t { bassChannel = 1, picksChannel, keysChannel, padChannel, leadChannel, drumChannel = 9 };

/// An arrangement and where its bars stand in time.
class Score {
  public:
    explicit Score(const Arrangement& song) : song_(song) {}

    std::string file() const;

  private:
    MidiTrack conductor() const;
    MidiTrack drums() const;
    MidiTrack bass() const;
    MidiTrack picks() const;
    MidiTrack keys() const;
    MidiTrack pad() const;
    MidiTrack lead() const;

    std::int32_t halfBar() const { return song_.stepsPerBar / 2; }
    std::int32_t tickAt(std::int32_t bar, std::int32_t step) const;
    const Bar& barAt(std::int32_t bar) const { return song_.bars[static_cast<std::size_t>(bar)]; }
    const Chord& chordAt(std::int32_t bar, std::int32_t step) const;
    template <class Play>
    void forEachHit(Pattern Groove::*pattern, Play play) const;

    const Arrangement& song_;
};

MidiTrack trackOf(const Instrument& instrument, Channel channel) {
    enum Controller : std::uint8_t { volume = 7, pan = 10, reverb = 91, chorus = 93 };
    MidiTrack track(instrument.name);
    track.program(channel, instrument.program);
    track.controller(channel, volume, instrument.volume);
    track.controller(channel, pan, instrument.pan);
    track.controller(channel, reverb, instrument.reverb);
    track.controller(channel, chorus, instrument.chorus);
    return track;
}

std::int32_t loudness(char digit) {
    return 14 * (digit - '0');
}

std::int32_t Score::tickAt(std::int32_t bar, std::int32_t step) const {
    return (bar * song_.stepsPerBar + step) * ticksPerStep;
}

const Chord& Score::chordAt(std::int32_t bar, std::int32_t step) const {
    return step < halfBar() ? barAt(bar).firstHalf : barAt(bar).secondHalf;
}

// Calls play(bar, step, character, steps to the next character) for all that a pattern doesn't rest on.
template <class Play>
void Score::forEachHit(Pattern Groove::*pattern, Play play) const {
    for (std::int32_t bar = 0; bar < std::ssize(song_.bars); ++bar) {
        const Pattern steps = barAt(bar).groove->*pattern;
        for (std::size_t step = 0; step < steps.size(); ++step) {
            if (steps[step] == '.') continue;
            const std::size_t next = std::min(steps.find_first_not_of('.', step + 1), steps.size());
            play(bar, static_cast<std::int32_t>(step), steps[step], static_cast<std::int32_t>(next - step));
        }
    }
}

MidiTrack Score::conductor() const {
    MidiTrack track(song_.title);
    track.beatsPerBar(static_cast<std::uint8_t>(song_.stepsPerBar / stepsPerQuarter));
    track.majorKey(song_.sharps);
    for (const TempoChange& each : song_.tempos) track.tempo(tickAt(each.bar, each.step), each.beatsPerMinute);
    return track;
}

MidiTrack Score::drums() const {
    struct Drum {
        Pattern Groove::*pattern;
        std::int32_t key;
    };
    constexpr Drum kit[] = {{&Groove::kick, 36},    {&Groove::snare, 38},  {&Groove::rim, 37},  {&Groove::hat, 42},
                            {&Groove::openHat, 46}, {&Groove::shaker, 70}, {&Groove::crash, 49}};
    MidiTrack track = trackOf(song_.band.drums, drumChannel);
    for (const Drum& drum : kit) {
        forEachHit(drum.pattern, [&](std::int32_t bar, std::int32_t step, char hit, std::int32_t) {
            track.note(drumChannel, {tickAt(bar, step), ticksPerStep, drum.key, loudness(hit)});
        });
    }
    return track;
}

MidiTrack Score::bass() const {
    MidiTrack track = trackOf(song_.band.bass, bassChannel);
    forEachHit(&Groove::bass, [&](std::int32_t bar, std::int32_t step, char tone, std::int32_t steps) {
        const std::int32_t root = chordAt(bar, step).bass;
        const std::int32_t fifth = root > 40 ? root - 5 : root + 7;
        const std::int32_t key = tone == 'o' ? root + 12 : tone == 'f' ? fifth : root;
        const std::int32_t velocity = step % 8 == 0 ? 92 : 78;
        track.note(bassChannel, {tickAt(bar, step), steps * ticksPerStep - 20, key, velocity});
    });
    return track;
}

// A plucked string rings until it is played again or the chord changes.
MidiTrack Score::picks() const {
    MidiTrack track = trackOf(song_.band.picks, picksChannel);
    forEachHit(&Groove::picks, [&](std::int32_t bar, std::int32_t step, char tone, std::int32_t) {
        const Pattern picks = barAt(bar).groove->picks;
        const auto again =
            static_cast<std::int32_t>(std::min(picks.find(tone, static_cast<std::size_t>(step) + 1), picks.size()));
        const std::int32_t until = step < halfBar() ? std::min(again, halfBar()) : again;
        const std::int32_t key = chordAt(bar, step).tones[static_cast<std::size_t>(tone - '0')];
        const std::int32_t velocity = step % 8 == 0 ? 84 : step % 4 == 0 ? 74 : 64;
        track.note(picksChannel, {tickAt(bar, step), (until - step) * ticksPerStep, key, velocity});
    });
    return track;
}

// The depth is the bass's, the rest of the chord the plucked strings'.
std::span<const std::int32_t> upperTwo(const Chord& chord) {
    return std::span(chord.tones).last(2);
}

MidiTrack Score::keys() const {
    MidiTrack track = trackOf(song_.band.keys, keysChannel);
    forEachHit(&Groove::keys, [&](std::int32_t bar, std::int32_t step, char hit, std::int32_t steps) {
        for (const std::int32_t key : upperTwo(chordAt(bar, step))) {
            track.note(keysChannel, {tickAt(bar, step), steps * ticksPerStep - 30, key, loudness(hit)});
        }
    });
    return track;
}

// A chord that lasts through both halves of a bar is held.
MidiTrack Score::pad() const {
    MidiTrack track = trackOf(song_.band.pad, padChannel);
    for (std::int32_t half = 0; half < 2 * std::ssize(song_.bars); ++half) {
        const std::int32_t bar = half / 2;
        const std::int32_t step = half % 2 * halfBar();
        const Chord& chord = chordAt(bar, step);
        const bool tied = step > 0 && chord.tones == chordAt(bar, 0).tones;
        if (tied) continue;
        const bool lastsOn = step == 0 && chord.tones == chordAt(bar, halfBar()).tones;
        const std::int32_t length = (lastsOn ? song_.stepsPerBar : halfBar()) * ticksPerStep;
        for (const std::int32_t key : upperTwo(chord))
            track.note(padChannel, {tickAt(bar, step), length, key, barAt(bar).groove->padLoudness});
    }
    return track;
}

MidiTrack Score::lead() const {
    MidiTrack track = trackOf(song_.band.lead, leadChannel);
    for (const LeadNote& each : song_.notes) {
        track.note(leadChannel, {tickAt(each.bar, each.step), each.steps * ticksPerStep, each.key, each.velocity});
    }
    return track;
}

std::string Score::file() const {
    const std::int32_t end = tickAt(static_cast<std::int32_t>(song_.bars.size()), 0);
    return midiFile({conductor(), drums(), bass(), picks(), keys(), pad(), lead()}, ticksPerQuarter, end);
}

}  // namespace

std::string scoreOf(const Arrangement& song) {
    return Score(song).file();
}

}  // namespace lyrebrook
