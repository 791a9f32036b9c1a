#pragma once

#include <QString>
#include <array>
#include <cstdint>

namespace lyrebrook {

/// The version record, of the size in bytes that its first field has to state.
struct OSVERSIONINFO {
    std::int32_t dwOSVersionInfoSize = 0;
    std::int32_t dwMajorVersion = 0;
    std::int32_t dwMinorVersion = 0;
    std::int32_t dwBuildNumber = 0;
    std::int32_t dwPlatformId = 0;
    std::array<char, 128> szCSDVersion{};
};
static_assert(sizeof(OSVERSIONINFO) == 148);

/// What the system tells about itself. The defaults are this host's: it belongs to neither of the two known families,
/// and it has no Windows folder.
struct SystemIdentity {
    std::int32_t platformId = 0;
    std::int32_t majorVersion = 0;
    std::int32_t minorVersion = 0;
    QString windowsFolder;
};

/// Makes the two calls below answer from `identity`. Program's thread, as they are.
void setSystemIdentity(const SystemIdentity& identity);

/// Fills the record. False, and the record as it was, when its size field isn't 148.
bool GetVersionExA(OSVERSIONINFO& record);

/// Puts the Windows folder and a NUL at the start of `buffer`, of which the first `size` characters may be used, and
/// returns the folder's length without the NUL. 0, and the buffer as it was, when the host has no such folder. When the
/// buffer is too small it stays as it was too, and the size that it would need, with the NUL, is returned.
std::int32_t GetWindowsDirectoryA(QString& buffer, std::int32_t size);

}  // namespace lyrebrook
