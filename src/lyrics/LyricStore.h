#pragma once

#include <QString>
#include <cstdint>
#include <vector>

#include "shell/modConfig.h"

namespace lyrebrook {

/// The rules of the lyric store, apart from any screen and from `gLyrics`, which they are applied to. Entries stand in
/// the rows from 0 on, and the highest row is an empty spare that is not one of them. No two entries have one position.
/// Program's thread; failures are RuntimeErrors.
using LyricRows = std::vector<LyricRow>;

enum LyricColumn : std::int16_t { positionColumn = 0, chordColumn = 1, lyricColumn = 2 };

struct LyricEntry {
    QString position;  ///< bytes of the music, as a decimal number
    QString chord;
    QString lyric;
};

/// A store without entries.
LyricRows emptyLyrics();

/// Number of the spare row, and of the entries. RuntimeError `overflow` beyond what a row's number can be.
std::int16_t upperBound(const LyricRows& rows);

QString cellText(const LyricRow& row, LyricColumn column);

/// Position of an entry in bytes, 0 for an empty cell. RuntimeError where the text is no 32-bit number.
std::int32_t bytePosition(const LyricRow& row);

/// The position padded to nine digits, so that the order of the texts is the order of the numbers.
QString convertToNineDigit(const QString& position);

/// Adds an entry above all others; an entry that has the position already is left as it is.
void addLyricToArray(LyricRows& rows, const LyricEntry& entry);

/// The same for a position that is known to be free, and padded.
void appendLyric(LyricRows& rows, const LyricEntry& entry);

/// Gives the entry at that position a new chord and lyric; an empty one keeps the old.
void updateLyricLine(LyricRows& rows, const LyricEntry& entry);

/// Takes the entry at that position away. The last one leaves an empty entry behind.
void deleteLyricLine(LyricRows& rows, const QString& position);

/// Shell sort of the entries by the character codes of a column.
void sortLyrics(LyricRows& rows, std::int16_t column);

/// What a list shows of the store.
struct LyricItem {
    QString text;
    std::int32_t position = 0;
};

/// Each entry's lyric, "*" for one that has none.
std::vector<LyricItem> lyricItems(const LyricRows& rows);

}  // namespace lyrebrook
