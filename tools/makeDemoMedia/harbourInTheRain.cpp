#include "tunes.h"

namespace lyrebrook {
namespace {

constexpr Band band{
    .drums = {"Brushes", 40, 100, 64, 50, 0},
    .bass = {"Fretless bass", 35, 108, 64, 24, 10},
    .picks = {"Piano", 0, 116, 56, 60, 0},
    .keys = {"Electric piano", 4, 70, 90, 60, 40},
    .pad = {"Warm pad", 89, 70, 64, 90, 20},
    .lead = {"Clarinet", 71, 112, 76, 76, 0},
};

constexpr Chord fMajor7{41, {57, 60, 64, 69}};
constexpr Chord fOverA{45, {57, 60, 65, 69}};
constexpr Chord dMinor7{38, {57, 60, 62, 65}};
constexpr Chord bFlatMajor7{46, {57, 58, 62, 65}};
constexpr Chord cFourth{36, {55, 60, 65, 67}};
constexpr Chord c7{36, {55, 58, 64, 67}};
constexpr Chord gMinor7{43, {55, 58, 62, 65}};

const Groove opening{.picks = "0...1.2.3...2.1.", .padLoudness = 44};
const Groove verse{.kick = "4.........3.....",
                   .snare = "....2.....1.2...",
                   .bass = "r.........f.....",
                   .picks = "0...1.2.3...2.1.",
                   .padLoudness = 48};
const Groove fuller{.kick = "5.........4.....",
                    .snare = "....3..1..2.3...",
                    .bass = "r.....r...f...r.",
                    .picks = "0.1.2.3.2.1.2.3.",
                    .keys = "....3.......3...",
                    .padLoudness = 58};
const Groove slowing{.bass = "r.......r.......", .picks = "0...2...1...2...", .padLoudness = 46};
const Groove lastChord{.bass = "r...............", .picks = "0.1.2.3.........", .padLoudness = 40};

}  // namespace

Arrangement harbourInTheRain() {
    return {
        .title = "Harbour in the Rain",
        .sharps = -1,
        .stepsPerBar = 16,
        .band = band,
        .bars =
            {
                whole(fMajor7, opening),
                whole(bFlatMajor7, opening),  //
                whole(fMajor7, verse),
                whole(dMinor7, verse),
                whole(bFlatMajor7, verse),  //
                {cFourth, c7, &verse},      //
                {fMajor7, fOverA, &fuller},
                whole(dMinor7, fuller),
                whole(gMinor7, fuller),
                {cFourth, c7, &fuller},  //
                {bFlatMajor7, c7, &slowing},
                whole(fMajor7, lastChord),
            },
        .notes =
            {
                {1, 8, 4, 69, 80},  {1, 12, 4, 70, 84},                                           // pick-up
                {2, 0, 6, 72, 92},  {2, 6, 2, 74, 86},  {2, 8, 4, 72, 88},   {2, 12, 4, 69, 82},  // verse
                {3, 0, 12, 69, 88}, {3, 12, 2, 67, 80}, {3, 14, 2, 69, 82},                       //
                {4, 0, 6, 74, 92},  {4, 6, 2, 72, 86},  {4, 8, 4, 70, 86},   {4, 12, 4, 69, 82},  //
                {5, 0, 11, 67, 86}, {5, 12, 4, 72, 88},                                           //
                {6, 0, 6, 72, 94},  {6, 6, 2, 74, 90},  {6, 8, 8, 77, 100},                       // fuller
                {7, 0, 4, 76, 96},  {7, 4, 4, 74, 92},  {7, 8, 7, 69, 88},                        //
                {8, 0, 6, 70, 92},  {8, 6, 2, 69, 86},  {8, 8, 4, 67, 86},   {8, 12, 4, 70, 92},  //
                {9, 0, 4, 69, 90},  {9, 4, 10, 67, 86},                                           //
                {10, 0, 8, 74, 88}, {10, 8, 8, 72, 84}, {11, 0, 10, 69, 78},                      // closing
            },
        .tempos = {{0, 0, 84}, {10, 0, 74}, {11, 0, 62}},
    };
}

}  // namespace lyrebrook
