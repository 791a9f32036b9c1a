#include "shell/modINI.h"

#include "platform/files/ProfileFile.h"

namespace lyrebrook {

void writeProfileValue(const QString& section, const QString& key, const QString& value, const QString& file) {
    WritePrivateProfileString(section, key, value, file);
}

QString readProfileValue(const QString& section, const QString& key, const QString& defaultValue, const QString& file) {
    constexpr int bufferLength = 2048;
    return GetPrivateProfileString(section, key, defaultValue, bufferLength, file);
}

}  // namespace lyrebrook
