#pragma once

#include <QString>

#include "lyrics/LyricStore.h"

namespace lyrebrook {

/// What is printed of a song: its title in capitals, then each lyric with an empty line behind it. Lines that have no
/// lyric on purpose are left out, and so are all chords; the spare row counts as an empty lyric.
QString lyricSheet(const QString& songName, const LyricRows& lyrics);

}  // namespace lyrebrook
