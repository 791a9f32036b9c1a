#include "DemoSong.h"

namespace lyrebrook {
namespace {

constexpr Band band{
    .drums = {"Drums", 0, 124, 64, 30, 0},
    .bass = {"Bass", 33, 114, 64, 8, 0},
    .picks = {"Guitar", 24, 116, 40, 44, 20},
    .keys = {"Electric piano", 4, 88, 90, 36, 30},
    .pad = {"Organ", 19, 78, 64, 60, 0},
    .lead = {"Vibraphone", 11, 127, 74, 64, 0},
};

constexpr Chord d{38, {62, 66, 69, 74}};
constexpr Chord dNinth{38, {62, 64, 69, 74}};
constexpr Chord dOverFSharp{42, {62, 66, 69, 74}};
constexpr Chord bMinor7{35, {59, 62, 66, 69}};
constexpr Chord g{43, {59, 62, 67, 71}};
constexpr Chord gMajor7{43, {59, 62, 66, 71}};
constexpr Chord a{45, {61, 64, 69, 73}};
constexpr Chord aFourth{45, {62, 64, 69, 74}};
constexpr Chord fSharpMinor7{42, {61, 64, 66, 69}};
constexpr Chord eMinor7{40, {62, 64, 67, 71}};

const Groove opening{.shaker = "..2...3...2...3.", .picks = "0.2.1.3.2.1.3.2.", .padLoudness = 46};

const Groove pickUp{.snare = "............3.46",
                    .shaker = "..2...3...2...3.",
                    .bass = "r.............f.",
                    .picks = "0.2.1.3.2.1.3.2.",
                    .padLoudness = 50};

const Groove verse{.kick = "8.....5.7.......",
                   .rim = "....6.......6..2",
                   .hat = "5...5...5...5.3.",
                   .bass = "r.....r.f...r.f.",
                   .picks = "0.2.1.3.0.2.1.3.",
                   .padLoudness = 44};

const Groove verseFill{.kick = "8.....5.7.......",
                       .snare = "..........3.5.67",
                       .rim = "....6...........",
                       .hat = "5...5...5.......",
                       .bass = "r.....r.f.r.f.r.",
                       .picks = "0.2.1.3.0.2.1.3.",
                       .keys = "............4...",
                       .padLoudness = 50};

const Groove chorus{.kick = "8.....6.8..5....",
                    .snare = "....8.......8...",
                    .hat = "6.4.6.4.6.4.6...",
                    .openHat = "..............4.",
                    .bass = "r..r..o.f..f..r.",
                    .picks = "0.2.3.2.1.2.3.2.",
                    .keys = "5..4..4...4..4..",
                    .padLoudness = 58};

const Groove chorusStart{.kick = "9.....6.8..5....",
                         .snare = "....8.......8...",
                         .hat = "..4.6.4.6.4.6...",
                         .openHat = "..............4.",
                         .crash = "6...............",
                         .bass = "r..r..o.f..f..r.",
                         .picks = "0.2.3.2.1.2.3.2.",
                         .keys = "5..4..4...4..4..",
                         .padLoudness = 60};

const Groove slowing{.kick = "7...............",
                     .rim = "....5.......5...",
                     .hat = "4...3...4...3...",
                     .bass = "r.......f.......",
                     .picks = "0.2.1.3.2.1.3.2.",
                     .padLoudness = 50};

const Groove lastChord{.kick = "6...............",
                       .crash = "3...............",
                       .bass = "r...............",
                       .picks = "0.1.2.3.........",
                       .keys = "4...............",
                       .padLoudness = 50};

}  // namespace

Arrangement demoSong() {
    return {
        .title = "Demo 1",
        .sharps = 2,
        .stepsPerBar = 16,
        .band = band,
        .bars =
            {
                // Opening
                whole(d, opening),
                whole(dNinth, opening),
                whole(gMajor7, opening),
                {gMajor7, aFourth, &pickUp},
                // Verse
                whole(d, verse),
                whole(bMinor7, verse),
                whole(g, verse),
                {aFourth, a, &verse},
                {d, dOverFSharp, &verse},
                whole(bMinor7, verse),
                whole(eMinor7, verse),
                {aFourth, a, &verseFill},
                // Chorus
                whole(g, chorusStart),
                whole(a, chorus),
                whole(fSharpMinor7, chorus),
                whole(bMinor7, chorus),
                whole(gMajor7, chorus),
                {eMinor7, a, &chorus},
                {d, dNinth, &chorus},
                {d, dOverFSharp, &verseFill},
                // Closing
                whole(gMajor7, slowing),
                {aFourth, a, &slowing},
                {dNinth, d, &slowing},
                whole(d, lastChord),
            },
        .notes =
            {
                {0, 8, 4, 81, 104},   {0, 12, 4, 78, 100}, {1, 4, 12, 76, 102},                         // opening
                {2, 8, 4, 78, 104},   {2, 12, 4, 79, 102}, {3, 0, 6, 78, 104},   {3, 8, 8, 76, 100},    //
                {7, 10, 2, 81, 96},   {7, 12, 4, 85, 98},                                               // verse
                {11, 8, 2, 76, 96},   {11, 10, 2, 78, 98}, {11, 12, 4, 81, 102},                        //
                {15, 8, 4, 83, 100},  {15, 12, 4, 81, 98}, {18, 8, 2, 78, 98},   {18, 10, 2, 81, 100},  // chorus
                {18, 12, 4, 86, 102}, {19, 4, 12, 81, 96},                                              //
                {20, 8, 4, 83, 100},  {20, 12, 4, 81, 98}, {21, 4, 4, 78, 98},   {21, 8, 8, 76, 98},    // closing
                {22, 4, 12, 78, 96},  {23, 8, 8, 86, 92},
            },
        .tempos = {{0, 0, 96}, {22, 0, 90}, {22, 8, 82}, {23, 0, 70}},
    };
}

}  // namespace lyrebrook
