#pragma once

#include <QString>

#include "lyrics/LyricStore.h"

namespace lyrebrook {

/// The lyric file of a song: an entry a line, position, chord and lyric with "::" in between. A lyric that holds "::"
/// itself loses its tail on the way back. Failures are RuntimeErrors as those of a TextStream.

/// Adds the file's entries to those in the store, which win where both have a position; nothing is sorted. A missing
/// file is made. RuntimeError at a line with too few fields, or whose position is no 32-bit number, for the list and
/// the time line could not show it; the entries before it are in the store then.
void loadLyrics(LyricRows& rows, const QString& path);

/// All entries as the lines of a file, without the blanks around each text.
QString lyricLines(const LyricRows& rows);

}  // namespace lyrebrook
