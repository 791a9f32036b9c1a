#include "tunes.h"

namespace lyrebrook {
namespace {

constexpr Band band{
    .drums = {"Drums", 0, 108, 64, 24, 0},
    .bass = {"Bass", 33, 112, 64, 10, 0},
    .picks = {"Steel guitar", 25, 112, 40, 36, 10},
    .keys = {"Bar-room piano", 3, 76, 90, 34, 10},
    .pad = {"Organ", 16, 46, 70, 50, 30},
    .lead = {"Harmonica", 22, 108, 74, 50, 0},
};

constexpr Chord a{45, {57, 61, 64, 69}};
constexpr Chord d{38, {57, 62, 66, 69}};
constexpr Chord e{40, {56, 59, 64, 68}};
constexpr Chord fSharpMinor{42, {57, 61, 66, 69}};

const Groove rollingUp{.snare = "2131213121312131", .picks = "0.2.1.3.0.2.1.3.", .padLoudness = 30};
const Groove rolling{.kick = "6...4...6...4...",
                     .snare = "2131213121312132",
                     .bass = "r...f...r...f...",
                     .picks = "0.2.1.3.0.2.1.3.",
                     .padLoudness = 40};
const Groove atSpeed{.kick = "7...5...7...5...",
                     .snare = "2142214221422143",
                     .hat = "..4...4...4...4.",
                     .bass = "r...f...r...f.r.",
                     .picks = "0.2.1.3.0.2.3.2.",
                     .keys = "....5.......5..4",
                     .padLoudness = 50};
const Groove braking{.kick = "6.......6.......",
                     .snare = "2...2...2...2...",
                     .bass = "r.......r.......",
                     .picks = "0.2.1.3.0.2.1.3.",
                     .padLoudness = 44};
const Groove stopped{.kick = "6...............",
                     .crash = "3...............",
                     .bass = "r...............",
                     .picks = "0.1.2.3.........",
                     .keys = "4...............",
                     .padLoudness = 40};

}  // namespace

Arrangement morningTrain() {
    return {
        .title = "Morning Train",
        .sharps = 3,
        .stepsPerBar = 16,
        .band = band,
        .bars =
            {
                whole(a, rollingUp), whole(a, rolling),                                                            //
                whole(a, rolling),   whole(a, rolling),           whole(d, rolling), whole(a, rolling),            //
                whole(a, rolling),   whole(fSharpMinor, rolling), whole(d, rolling), whole(e, rolling),            //
                whole(d, atSpeed),   whole(e, atSpeed),           whole(a, atSpeed), whole(fSharpMinor, atSpeed),  //
                whole(d, atSpeed),   whole(e, atSpeed),           whole(a, atSpeed), whole(a, rolling),            //
                {d, e, &braking},    whole(a, stopped),
            },
        .notes =
            {
                {2, 0, 4, 76, 96},   {2, 4, 2, 73, 88},   {2, 6, 2, 76, 90},   {2, 8, 4, 78, 98},
                {2, 12, 4, 76, 92},                                            //
                {3, 0, 8, 73, 94},   {3, 8, 4, 69, 86},   {3, 12, 4, 71, 88},  //
                {4, 0, 4, 74, 92},   {4, 4, 4, 78, 96},   {4, 8, 6, 81, 104},  {4, 14, 2, 78, 92},
                {5, 0, 11, 76, 96},  //
                {6, 0, 4, 76, 94},   {6, 4, 2, 73, 88},   {6, 6, 2, 76, 90},   {6, 8, 4, 81, 102},
                {6, 12, 4, 80, 96},                                                                 //
                {7, 0, 8, 78, 98},   {7, 8, 4, 73, 88},   {7, 12, 4, 76, 90},                       //
                {8, 0, 6, 74, 92},   {8, 6, 2, 73, 88},   {8, 8, 4, 74, 92},   {8, 12, 4, 78, 96},  //
                {9, 0, 8, 76, 96},   {9, 8, 7, 71, 90},                                             //
                {10, 0, 4, 78, 100}, {10, 4, 2, 78, 94},  {10, 6, 2, 81, 100}, {10, 8, 4, 78, 96},
                {10, 12, 4, 74, 92},                                            //
                {11, 0, 4, 76, 96},  {11, 4, 4, 80, 100}, {11, 8, 8, 83, 106},  //
                {12, 0, 6, 81, 104}, {12, 6, 2, 76, 94},  {12, 8, 8, 73, 94},   //
                {13, 0, 4, 69, 90},  {13, 4, 4, 73, 94},  {13, 8, 8, 78, 100},  //
                {14, 0, 4, 78, 98},  {14, 4, 2, 76, 92},  {14, 6, 2, 74, 90},  {14, 8, 4, 73, 90},
                {14, 12, 4, 74, 92},                                                                 //
                {15, 0, 4, 71, 90},  {15, 4, 4, 73, 92},  {15, 8, 4, 74, 94},  {15, 12, 4, 76, 96},  //
                {16, 0, 8, 73, 94},  {16, 8, 7, 69, 90},                                             //
                {18, 0, 4, 78, 94},  {18, 4, 4, 74, 88},  {18, 8, 4, 76, 90},  {18, 12, 4, 80, 94},
                {19, 0, 12, 81, 92},
            },
        .tempos = {{0, 0, 138}, {18, 0, 120}, {18, 8, 104}, {19, 0, 90}},
    };
}

}  // namespace lyrebrook
