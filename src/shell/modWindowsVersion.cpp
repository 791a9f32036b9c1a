#include "shell/modWindowsVersion.h"

#include <array>

#include "platform/system/WindowsVersion.h"

namespace lyrebrook {
namespace {

enum Version : std::int16_t { win32, win95, win98, winME, winNT, win2K, winXP };

OSVERSIONINFO versionRecord() {
    OSVERSIONINFO record;
    record.dwOSVersionInfoSize = 148;
    GetVersionExA(record);
    return record;
}

std::int16_t consumerVersion(const OSVERSIONINFO& record) {
    switch (record.dwMinorVersion) {
        case 0:
            return win95;
        case 10:
            return win98;
        case 90:
            return winME;
        default:
            return win32;
    }
}

std::int16_t professionalVersion(const OSVERSIONINFO& record) {
    if (record.dwMajorVersion < 5) return winNT;
    if (record.dwMajorVersion == 5 && record.dwMinorVersion == 0) return win2K;
    if (record.dwMajorVersion == 5 && record.dwMinorVersion == 1) return winXP;
    return win32;
}

}  // namespace

std::int32_t getOSPlatform() {
    return versionRecord().dwPlatformId;
}

std::int16_t getOSVersion() {
    const OSVERSIONINFO record = versionRecord();
    switch (record.dwPlatformId) {
        case 1:
            return consumerVersion(record);
        case 2:
            return professionalVersion(record);
        default:
            return win32;
    }
}

QString osName(std::int16_t version) {
    static const std::array<const char*, 7> names = {"Windows 32", "Windows 95", "Windows 98", "Windows ME",
                                                     "Windows NT", "Windows 2K", "Windows XP"};
    return QString::fromLatin1(names.at(static_cast<std::size_t>(version)));
}

QString soundVolumeTool(const QString& osName) {
    if (osName == u"Windows 98" || osName == u"Windows ME") return QStringLiteral("C:\\WINDOWS\\SNDVOL32.EXE");
    if (osName == u"Windows NT") return QStringLiteral("C:\\WINNT\\System32\\sndrec32.exe");
    if (osName == u"Windows 2K") return QStringLiteral("C:\\WINNT\\System32\\sndvol32.exe");
    if (osName == u"Windows XP") return QStringLiteral("C:\\WINDOWS\\System32\\sndvol32.exe");
    return QStringLiteral("na");
}

}  // namespace lyrebrook
