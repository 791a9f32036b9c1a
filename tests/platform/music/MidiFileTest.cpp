#include "platform/music/MidiFile.h"

#include "MidiBytes.h"
#include "platform/base/RuntimeError.h"

#include <gmock/gmock.h>

#include <cmath>
#include <random>

namespace lyrebrook {
namespace {

using testing::DoubleEq;
using testing::ElementsAreArray;
using testing::Pointwise;

MidiSong read(const std::string& file) {
    return readMidiFile({reinterpret_cast<const std::uint8_t*>(file.data()), file.size()});
}

std::vector<double> noteTimes(const MidiSong& song) {
    std::vector<double> times;
    for (const MidiEvent& each : song.events) {
        if ((each.status & 0xF0) == 0x90 && each.second > 0) times.push_back(each.seconds);
    }
    return times;
}

struct Timing {
    const char* what;
    std::string file;
    std::vector<double> notes;
    double end;
};

const std::string note = bytes({100, 0x90, 60, 90});
const std::string tempoSixty = bytes({0, 0xFF, 0x51, 3, 0x0F, 0x42, 0x40});
const std::string wrapped =
    "RIFF" + bytes({4, 0, 0, 0}) + "RMIDjunk" + bytes({1, 0, 0, 0, 9, 0}) + "data" + bytes({0, 1, 0, 0});

const Timing timings[] = {
    {"120 quarters a minute at first", midiFile({note + bytes({100}) + endOfTrack.substr(1)}), {1}, 2},
    {"tempo of another track", midiFile({tempoSixty + endOfTrack, note + note + endOfTrack}), {2, 4}, 4},
    {"tempo in the middle", midiFile({note + tempoSixty + note + endOfTrack}), {1, 3}, 3},
    {"running status", midiFile({note + bytes({100, 62, 90, 50, 62, 0}) + endOfTrack}), {1, 2}, 2.5},
    {"exclusive and meta in between",
     midiFile({bytes({50, 0xF0, 5, 0x7E, 0x7F, 9, 1, 0xF7, 25, 0xFF, 1, 2, 'h', 'i', 25, 0x90, 60, 9}) + endOfTrack}),
     {1},
     1},
    {"film frames", midiFile({note + endOfTrack}, 1, 0xE728), {0.1}, 0.1},
    {"tracks one after the other", midiFile({note + endOfTrack, note + endOfTrack}, 2), {1, 2}, 2},
    {"an unknown chunk", midiFile({}) + chunk("Misc", "?") + midiFile({note}).substr(14), {1}, 1},
    {"inside a RIFF file", wrapped + midiFile({note}), {1}, 1},
    {"a track that claims too much", midiFile({note}).replace(21, 1, "\x7F"), {1}, 1},
    {"a track that is cut in its second note", midiFile({note + note.substr(0, 3)}), {1}, 2},
    {"noise after a note", midiFile({note + bytes({10, 0xF4, 1, 2, 3})}), {1}, 1.1},
    {"an end that is hours away", midiFile({note + bytes({0xFF, 0xFF, 0xFF, 0x7F, 0xFF, 0x2F, 0})}), {1}, 16},
};

TEST(MidiFile, NotesComeAtTheTimesThatTheFileMeans) {
    for (const Timing& each : timings) {
        const MidiSong song = read(each.file);
        EXPECT_THAT(noteTimes(song), Pointwise(testing::DoubleNear(1e-9), each.notes)) << each.what;
        EXPECT_NEAR(song.seconds, each.end, 1e-9) << each.what;
    }
}

TEST(MidiFile, WithoutOneNoteItIsAnError) {
    const std::string files[] = {"",
                                 "MThd",
                                 midiFile({}),
                                 midiFile({bytes({0, 0xC0, 5}) + endOfTrack}),
                                 midiFile({bytes({0, 0x90, 60, 0}) + endOfTrack}),
                                 midiFile({note + endOfTrack}, 1, 0),
                                 midiFile({note + endOfTrack}, 1, 0xE700),
                                 wrapped,
                                 wrapped.substr(0, 12)};
    for (const std::string& each : files) EXPECT_THROW(read(each), RuntimeError);
}

// Whatever the damage: no read beyond the end (the sanitizer sees that), and a song that can be played in order.
TEST(MidiFile, ADamagedFileIsAnErrorOrASong) {
    const std::string whole = wrapped + midiFile({tempoSixty + timings[4].file.substr(22), note + note + endOfTrack});
    std::mt19937 random(1);
    int songs = 0;
    for (int round = 0; round < 3000; ++round) {
        std::string torn = whole.substr(0, random() % (whole.size() + 1));
        for (auto flips = random() % 4; flips > 0 && !torn.empty(); --flips) {
            torn[random() % torn.size()] = static_cast<char>(random());
        }
        try {
            const MidiSong song = read(torn);
            ++songs;
            double last = 0;
            for (const MidiEvent& each : song.events) {
                EXPECT_GE(each.seconds, last);
                EXPECT_LT(each.first | each.second, 0x80);
                last = each.seconds;
            }
            EXPECT_GE(song.seconds, last);
            EXPECT_TRUE(std::isfinite(song.seconds));
        } catch (const RuntimeError& error) {
            EXPECT_FALSE(error.description().empty());
        }
    }
    EXPECT_GT(songs, 100);
}

}  // namespace
}  // namespace lyrebrook
