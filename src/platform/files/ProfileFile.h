#pragma once

#include <QString>

#include "platform/base/ReplacingFile.h"

namespace lyrebrook {

/// Profile files: a line "[section]", then lines "key=value". Names compare without case; the first section and the
/// first key of a name count. Blanks and tabs around names and values don't belong to them, nor does one pair of double
/// or single quotes around a value. Lines that begin with ";" say nothing. Program's thread.

/// The value, cut to `maxChars` - 1 characters; `defaultValue` when the file, the section or the key is missing or the
/// file can't be read. Makes nothing.
QString GetPrivateProfileString(const QString& section, const QString& key, const QString& defaultValue, int maxChars,
                                const QString& file);

/// Sets a value, making section and file when they are missing; every other line stays byte for byte. False, and
/// the old file whole, when it can't be written, for instance for want of its folder.
///
/// A line break in `value` would turn its rest into lines of the file, even into other keys, so each is stored as one
/// blank; a NUL ends the value.
bool WritePrivateProfileString(const QString& section, const QString& key, const QString& value, const QString& file,
                               ReplacingFile::Flush flush = ReplacingFile::Flush::toDisk);

/// Holds back what is written to one profile file until its own end, and then replaces the file once: with all of it
/// or, when that fails, with nothing, which goes unnoticed. Reading finds what was written. One at a time.
class ProfileTransaction {
  public:
    explicit ProfileTransaction(const QString& file);
    ~ProfileTransaction();
    ProfileTransaction(const ProfileTransaction&) = delete;
    ProfileTransaction& operator=(const ProfileTransaction&) = delete;
};

}  // namespace lyrebrook
