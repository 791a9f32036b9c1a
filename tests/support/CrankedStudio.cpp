#include "support/CrankedStudio.h"

#include <QDir>
#include <QFile>
#include <cstring>

#include "mixer/modMixer.h"
#include "platform/directx/DirectX8.h"
#include "platform/files/App.h"
#include "platform/files/Settings.h"
#include "platform/forms/FormInstance.h"
#include "platform/sound/SoundSystem.h"
#include "recorder/recorderMemory.h"
#include "shell/modConfig.h"

namespace lyrebrook {
namespace {

constexpr std::chrono::milliseconds turn{10};
constexpr Frames framesPerTurn = 441;

void makeDataFolders(const QString& folder) {
    for (const char* name : {"songs", "projects", "tracks/Version1", "songTemplate", "playlists", "database", "support",
                             "DemoCD", "DemoCD_Example", "templates/cdRedPlayer"}) {
        QDir(folder).mkpath(QString::fromLatin1(name));
    }
}

void forgetTheSong() {
    for (QString* text : {&gSongName, &gBacktrackFile, &gSongsFolder, &gTracksFolder, &gSongTemplate}) text->clear();
    gVoiceTrackOffset = 0;
    gMixerDeviceIndex = 0;
    forgetRecorder();
    forgetMixer();
    gProjectEditMode = 0;
}

}  // namespace

CrankedStudio::CrankedStudio(const QString& folder) : folder_(folder) {
    makeDataFolders(folder_);
    App::setPath(folder_);
    setSettingsFolder(folder_);
    auto card = std::make_unique<VirtualCard>(VirtualCard::Clock::handCrank);
    card->setOutputCount(1);
    card_ = card.get();
    SoundSystem::install(std::move(card));
    forgetTheSong();
    setUpGlobals();
}

CrankedStudio::~CrankedStudio() {
    FormSlot::discardAll();
    SoundSystem::remove();
    forgetTheSong();
}

void CrankedStudio::crank(std::chrono::milliseconds time) {
    crankUntil([] { return false; }, time);
}

bool CrankedStudio::crankUntil(const std::function<bool()>& done, std::chrono::milliseconds limit) {
    for (std::chrono::milliseconds gone{0}; gone < limit; gone += turn) {
        if (done()) return true;
        card_->advance(framesPerTurn);
        DirectX8::deliverPendingEvents();
        desk_.advanceTime(static_cast<std::int32_t>(turn.count()));
    }
    return done();
}

Sound framesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QByteArray sound = file.readAll().mid(headerBytes);
    Sound frames(static_cast<std::size_t>(sound.size()) / bytesPerFrame);
    if (!frames.empty()) std::memcpy(frames.data(), sound.constData(), frames.size() * bytesPerFrame);
    return frames;
}

}  // namespace lyrebrook
