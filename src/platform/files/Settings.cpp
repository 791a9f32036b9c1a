#include "platform/files/Settings.h"

#include <QDir>
#include <QStandardPaths>
#include <limits>

#include "platform/files/ProfileFile.h"

namespace lyrebrook {
namespace {

QString& chosenFolder() {
    static QString folder;
    return folder;
}

QString settingsFolder() {
    const QString& chosen = chosenFolder();
    return chosen.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) : chosen;
}

QString settingsFile(const QString& application) {
    return settingsFolder() + u'/' + application + QStringLiteral(".ini");
}

}  // namespace

QString GetSetting(const QString& application, const QString& section, const QString& key,
                   const QString& defaultValue) {
    constexpr int noLimit = std::numeric_limits<int>::max();
    return GetPrivateProfileString(section, key, defaultValue, noLimit, settingsFile(application));
}

void SaveSetting(const QString& application, const QString& section, const QString& key, const QString& value) {
    QDir().mkpath(settingsFolder());
    // Reading takes the quotes off again, and so keeps blanks and quotes that belong to the value.
    WritePrivateProfileString(section, key, u'"' + value + u'"', settingsFile(application),
                              ReplacingFile::Flush::leaveToSystem);
}

void setSettingsFolder(const QString& folder) {
    chosenFolder() = folder;
}

}  // namespace lyrebrook
