#pragma once

#include <QFile>
#include <QTemporaryDir>
#include <span>

#include "platform/sound/SoundDesk.h"
#include "platform/sound/WaveFile.h"
#include "recorder/Playback.h"
#include "recorder/Tracks.h"
#include "shell/modConfig.h"

namespace lyrebrook {

/// A song in a folder of its own, and its tracks on a card that is turned by hand.
class RecorderDesk : public testing::Test, protected SoundDesk {
  protected:
    RecorderDesk() {
        gSongsFolder = folder.path() + u'/';
        gSongName = QStringLiteral("Song");
    }
    ~RecorderDesk() override {
        gSongsFolder.clear();
        gSongName.clear();
    }

    static void give(int track, std::span<const StereoFrame> frames) {
        writeWaveFile(trackFilePath(track).toStdString(), frames);
    }
    static void giveBytes(int track, const QByteArray& bytes) {
        QFile file(trackFilePath(track));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static QByteArray bytesOf(int track) {
        QFile file(trackFilePath(track));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::vector<Tracks::Unreadable> load() { return tracks.loadTracks(ds); }

    QTemporaryDir folder;
    Tracks tracks;
};

}  // namespace lyrebrook
