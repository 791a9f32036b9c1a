#pragma once

#include <QString>
#include <QVariant>
#include <array>
#include <cstdint>
#include <vector>

namespace lyrebrook {

/// State that all screens share. The current song is nothing but the text in `gSongName`: empty means that none is
/// selected. Everything here belongs to the program's one thread and is lost at its end.

/// A row of the lyric store: position as padded text, chord, lyric, and a spare column.
using LyricRow = std::array<QVariant, 4>;

extern QString gVersion;
extern QString gSettingsApp;
extern QString gWindowsFolder;
extern QString gSystemFolder;
extern QString gOSName;
extern QString gSoundVolumeTool;
extern QString gSongsFolder;  ///< folder texts end in a separator
extern QString gProjectsFolder;
extern QString gTracksFolder;
extern QString gSongTemplate;
extern QString gSongName;  ///< title of the current song, in its file-safe form
extern QString gLyricFile;
extern QString gBacktrackFile;  ///< the only link from choosing a backtrack to recording it
extern QString gWebSiteUrl;
extern QString gContactUrl;
extern std::int32_t gVoiceTrackOffset;  ///< thousands of bytes
extern std::int16_t gProjectEditMode;   ///< never assigned
extern std::int16_t gMixerDeviceIndex;  ///< the mixer that was chosen, as the mixer screen lists them
extern bool gLyricsSaved;
extern std::vector<LyricRow> gLyrics;  ///< the highest row is always an empty spare

/// What the start of the program settles before the first screen shows: folders, texts, the system's name, and an empty
/// lyric store of one row.
void setUpGlobals();

/// Path of a song's wave: the songs folder, the current song, and the track's number from 1 on.
QString trackFilePath(int track);

}  // namespace lyrebrook
