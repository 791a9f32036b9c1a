#pragma once

#include <gmock/gmock.h>

#include <QDir>
#include <QTemporaryDir>
#include <memory>
#include <span>

#include "platform/sound/SoundSystem.h"
#include "platform/sound/WaveFile.h"
#include "platform/sound/cards/VirtualCard.h"
#include "recorder/Playback.h"
#include "recorder/Tracks.h"
#include "shell/modConfig.h"
#include "support/Sound.h"

namespace lyrebrook {

/// Frames that tell their place and their track: one lost, doubled or moved shows itself.
inline Sound ramp(std::size_t frames, std::int16_t first = 1) {
    Sound sound(frames);
    for (std::size_t i = 0; i < frames; ++i) {
        const auto step = static_cast<std::int16_t>(first + static_cast<std::int16_t>(i % 5000));
        sound[i] = {step, static_cast<std::int16_t>(-step)};
    }
    return sound;
}

/// A song in a folder of its own, and its tracks on a card that is turned by hand.
class RecorderDesk : public testing::Test {
  protected:
    RecorderDesk() {
        auto owned = std::make_unique<VirtualCard>(VirtualCard::Clock::handCrank);
        card = owned.get();
        card->listen([this](Frames, std::span<const StereoFrame> frames) {
            heard.insert(heard.end(), frames.begin(), frames.end());
        });
        SoundSystem::install(std::move(owned));
        ds = std::make_unique<DirectSound8>(SoundSystem::engine());
        gSongsFolder = folder.path() + u'/';
        gSongName = QStringLiteral("Song");
    }
    ~RecorderDesk() override {
        SoundSystem::remove();
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

    std::vector<Tracks::Unreadable> load() { return tracks.loadTracks(*ds); }

    QTemporaryDir folder;
    VirtualCard* card;
    std::unique_ptr<DirectSound8> ds;
    Tracks tracks;
    Sound heard;
};

}  // namespace lyrebrook
