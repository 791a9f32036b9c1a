#pragma once

#include <QString>
#include <cstdint>

namespace lyrebrook {

/// The song data file: one profile file a song, found by the file-safe form of its title.
struct SongData {
    QString projectName;  ///< the title as it was typed
    QString projectCategory;
    std::int32_t voiceTrackOffset = 0;  ///< thousands of bytes
};

/// Form of a title that is usable in a file name: punctuation is dropped, a plus sign only behind the first character.
/// Blanks stay. A text of one character has no such form and gives nothing.
QString StrToDbStr(const QString& text);

/// The file-safe title without blanks around it: what `gSongName` holds for a title.
QString fileSafeTitle(const QString& title);

/// Full path of the data file that belongs to a title as typed.
QString songDataPath(const QString& title);

/// Whether a file of the projects folder counts as a song, by its bare name.
bool isSongDataFile(const QString& fileName);

/// Writes the three keys in their order. A write that fails goes unnoticed and leaves the old file.
void writeSongData(const QString& path, const SongData& song);

/// Name and category; a missing file gives empty texts. The offset is read apart, since it can fail.
SongData readSongTexts(const QString& path);

/// 0 when the key is missing or empty. RuntimeError `overflow` beyond 16 bits, although 32 are written.
std::int32_t readVoiceTrackOffset(const QString& path);

}  // namespace lyrebrook
