#pragma once

#include <QString>
#include <cstdint>

namespace lyrebrook {

/// Platform id of the system's version record: 0, 1 or 2.
std::int32_t getOSPlatform();

/// Index from 0 to 6 by the version record; 0 where nothing fits.
std::int16_t getOSVersion();

/// Name of the system for an index of `getOSVersion`.
QString osName(std::int16_t version);

/// Path of the volume tool that belongs to a system's name, "na" where there is none. Kept for the record: no screen
/// starts that tool.
QString soundVolumeTool(const QString& osName);

}  // namespace lyrebrook
