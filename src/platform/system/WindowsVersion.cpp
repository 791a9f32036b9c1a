#include "platform/system/WindowsVersion.h"

namespace lyrebrook {
namespace {

SystemIdentity& currentIdentity() {
    static SystemIdentity identity;
    return identity;
}

}  // namespace

void setSystemIdentity(const SystemIdentity& identity) {
    currentIdentity() = identity;
}

bool GetVersionExA(OSVERSIONINFO& record) {
    if (record.dwOSVersionInfoSize != sizeof(OSVERSIONINFO)) return false;
    const SystemIdentity& identity = currentIdentity();
    record.dwPlatformId = identity.platformId;
    record.dwMajorVersion = identity.majorVersion;
    record.dwMinorVersion = identity.minorVersion;
    return true;
}

std::int32_t GetWindowsDirectoryA(QString& buffer, std::int32_t size) {
    const QString& folder = currentIdentity().windowsFolder;
    if (folder.isEmpty()) return 0;
    const auto length = static_cast<std::int32_t>(folder.size());
    if (length >= size) return length + 1;
    buffer.replace(0, length + 1, folder + QChar(0));
    return length;
}

}  // namespace lyrebrook
