#include "shell/modConfig.h"

#include "platform/files/App.h"
#include "platform/system/WindowsVersion.h"
#include "shell/modWindowsVersion.h"

namespace lyrebrook {

QString gVersion;
QString gSettingsApp;
QString gWindowsFolder;
QString gSystemFolder;
QString gOSName;
QString gSoundVolumeTool;
QString gSongsFolder;
QString gProjectsFolder;
QString gTracksFolder;
QString gSongTemplate;
QString gSongName;
QString gLyricFile;
QString gBacktrackFile;
QString gWebSiteUrl;
QString gContactUrl;
std::int32_t gVoiceTrackOffset = 0;
std::int16_t gProjectEditMode = 0;
std::int16_t gMixerDeviceIndex = 0;
bool gLyricsSaved = false;
std::vector<LyricRow> gLyrics;

namespace {

void setUpSystemFolders() {
    constexpr int bufferLength = 255;
    gWindowsFolder = QString(bufferLength, u' ');
    if (GetWindowsDirectoryA(gWindowsFolder, bufferLength) == 0) {
        gSystemFolder = QStringLiteral("C:\\WINDOWS\\SYSTEM32");
        return;
    }
    if (const auto nul = gWindowsFolder.indexOf(QChar(0)); nul >= 0) gWindowsFolder.truncate(nul);
    const bool separated = gWindowsFolder.endsWith(u'\\');
    gSystemFolder = gWindowsFolder + (separated ? QStringLiteral("SYSTEM32\\") : QStringLiteral("\\SYSTEM32\\"));
}

}  // namespace

void setUpGlobals() {
    setUpSystemFolders();
    gSettingsApp = QStringLiteral("Orvantis Lyrebrook");
    gWebSiteUrl = QStringLiteral("https://www.lyrebrook.example/software/index.asp");
    gContactUrl = QStringLiteral("https://www.lyrebrook.example/email/email.asp");
    gSongsFolder = App::Path() + QStringLiteral("/songs/");
    gLyricFile = App::Path() + QStringLiteral("/songs/") + gSongName + QStringLiteral(".txt");
    gProjectsFolder = App::Path() + QStringLiteral("/projects/");
    gVersion = QStringLiteral("Vrn1.2");
    gOSName = osName(getOSVersion());
    gSoundVolumeTool = soundVolumeTool(gOSName);
    gLyrics.assign(1, LyricRow{});
}

QString trackFilePath(int track) {
    return gSongsFolder + gSongName + u'_' + QString::number(track) + QStringLiteral(".wav");
}

}  // namespace lyrebrook
