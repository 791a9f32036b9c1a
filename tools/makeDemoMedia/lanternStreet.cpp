#include "tunes.h"

namespace lyrebrook {
namespace {

constexpr Band band{
    .drums = {"Shaker", 0, 96, 80, 30, 0},
    .bass = {"Upright bass", 32, 118, 64, 20, 0},
    .picks = {"Guitar", 24, 120, 44, 50, 10},
    .keys = {"Accordion", 21, 64, 92, 50, 20},
    .pad = {"Strings", 48, 58, 64, 80, 0},
    .lead = {"Flute", 73, 110, 72, 70, 10},
};

constexpr Chord g{43, {55, 62, 67, 71}};
constexpr Chord eMinor{40, {55, 59, 64, 67}};
constexpr Chord c{36, {55, 60, 64, 67}};
constexpr Chord d{38, {57, 62, 66, 69}};
constexpr Chord aMinor{45, {57, 60, 64, 69}};
constexpr Chord bMinor{47, {54, 59, 62, 66}};

const Groove opening{.picks = "0...2.3.2.1.", .padLoudness = 34};
const Groove verse{.shaker = "....3...3...", .bass = "r...........", .picks = "0...2.3.2.1.", .padLoudness = 40};
const Groove refrain{.shaker = "2...4..24...",
                     .bass = "r.......f...",
                     .picks = "0.1.2.3.2.1.",
                     .keys = "....4...4...",
                     .padLoudness = 52};
const Groove slowing{.bass = "r.....r.....", .picks = "0...2.3.2.1.", .padLoudness = 44};
const Groove lastChord{.bass = "r...........", .picks = "0.1.2.3.....", .padLoudness = 40};

}  // namespace

Arrangement lanternStreet() {
    return {
        .title = "Lantern Street",
        .sharps = 1,
        .stepsPerBar = 12,
        .band = band,
        .bars =
            {
                whole(g, opening),     whole(c, opening),                                                     //
                whole(g, verse),       whole(eMinor, verse), whole(c, verse),        whole(d, verse),         //
                whole(g, verse),       whole(eMinor, verse), whole(aMinor, verse),   whole(d, verse),         //
                whole(c, refrain),     whole(d, refrain),    whole(bMinor, refrain), whole(eMinor, refrain),  //
                whole(c, refrain),     whole(d, refrain),    whole(g, refrain),      whole(eMinor, refrain),  //
                {aMinor, d, &slowing}, whole(g, lastChord),
            },
        .notes =
            {
                {2, 0, 8, 71, 88},  {2, 8, 4, 74, 92},  {3, 0, 8, 76, 96},   {3, 8, 4, 74, 88},    // verse
                {4, 0, 4, 76, 92},  {4, 4, 4, 74, 86},  {4, 8, 4, 72, 88},   {5, 0, 12, 69, 90},   //
                {6, 0, 8, 71, 90},  {6, 8, 4, 74, 94},  {7, 0, 8, 79, 100},  {7, 8, 4, 78, 92},    //
                {8, 0, 4, 76, 94},  {8, 4, 4, 72, 86},  {8, 8, 4, 76, 90},   {9, 0, 11, 74, 92},   //
                {10, 0, 6, 76, 98}, {10, 6, 2, 78, 92}, {10, 8, 4, 79, 100}, {11, 0, 8, 78, 100},  // refrain
                {11, 8, 4, 74, 92}, {12, 0, 6, 74, 96}, {12, 6, 2, 76, 92},  {12, 8, 4, 78, 98},   //
                {13, 0, 8, 76, 96}, {13, 8, 4, 71, 88}, {14, 0, 6, 72, 94},  {14, 6, 2, 71, 88},   //
                {14, 8, 4, 72, 92}, {15, 0, 4, 69, 90}, {15, 4, 4, 71, 90},  {15, 8, 4, 72, 94},   //
                {16, 0, 8, 71, 94}, {16, 8, 4, 67, 86}, {17, 0, 11, 71, 90},                       //
                {18, 0, 6, 72, 86}, {18, 6, 6, 69, 82}, {19, 0, 12, 67, 80},                       // closing
            },
        .tempos = {{0, 0, 112}, {18, 0, 98}, {19, 0, 80}},
    };
}

}  // namespace lyrebrook
