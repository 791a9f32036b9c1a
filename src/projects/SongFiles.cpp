#include "projects/SongFiles.h"

#include "platform/base/RuntimeError.h"
#include "platform/files/FileSystemObject.h"
#include "projects/SongData.h"
#include "shell/modConfig.h"

namespace lyrebrook {

bool deleteFile(const QString& path) {
    try {
        FileSystemObject().DeleteFile(path, false);
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

void deleteSongFiles(const QString& title) {
    deleteFile(songDataPath(title));
    for (int track = 1; track <= 4; ++track) deleteFile(trackFilePath(track));
    deleteFile(gSongsFolder + gSongName + QStringLiteral(".txt"));
}

}  // namespace lyrebrook
