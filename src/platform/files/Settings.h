#pragma once

#include <QString>

namespace lyrebrook {

/// The store of the person's preferences: texts by application, section and key, one file an application in the user's
/// configuration folder. A value is on the disk when `SaveSetting` returns, though not yet safe from a power cut: a
/// slider saves many times a second. Program's thread.

/// `defaultValue` when the setting was never saved.
QString GetSetting(const QString& application, const QString& section, const QString& key, const QString& defaultValue);

/// Line breaks become blanks, everything else comes back as it was. What can't be saved is forgotten in silence: a
/// preference is not worth an error on the screen.
void SaveSetting(const QString& application, const QString& section, const QString& key, const QString& value);

/// Keeps the settings of the whole process in `folder`; empty means the user's configuration folder.
void setSettingsFolder(const QString& folder);

}  // namespace lyrebrook
