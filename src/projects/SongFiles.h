#pragma once

#include <QString>

namespace lyrebrook {

/// Deletes one file. False, with no message, when that fails: it is missing, or its owner may not write it.
bool deleteFile(const QString& path);

/// Deletes what belongs to a song: the data file of `title` as typed, then waves and lyrics of the current song. The
/// two differ when another title was typed than the one selected. What can't be deleted is passed over.
void deleteSongFiles(const QString& title);

}  // namespace lyrebrook
