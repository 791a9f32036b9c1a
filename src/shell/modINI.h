#pragma once

#include <QString>

namespace lyrebrook {

/// Stores a key of a profile file. A failed write goes unnoticed; the file is made when missing, its folder is not.
void writeProfileValue(const QString& section, const QString& key, const QString& value, const QString& file);

/// Text of a key, at most 2047 characters; `defaultValue` when the file, the section or the key is missing.
QString readProfileValue(const QString& section, const QString& key, const QString& defaultValue, const QString& file);

}  // namespace lyrebrook
