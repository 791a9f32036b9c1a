#pragma once

#include <QString>

namespace lyrebrook {

/// Where the program's folders can be.
struct DataPlaces {
    QString executableFolder;
    QString installedData;  ///< shipped with the program, read only
    QString userFolder;     ///< of this person
};

/// The executable's folder when a person's songs can live there: "songs" and "projects" are there and can be written.
/// Else the user's folder, which is filled from the installed data when it isn't there yet: wholly or, when that fails,
/// not at all.
QString dataFolder(const DataPlaces& places);

/// Program's thread.
class App {
  public:
    /// The folder that holds all data folders of the program, without a separator at its end. Settled at the first
    /// call.
    static QString Path();

    /// Takes another folder from now on.
    static void setPath(const QString& path);
};

}  // namespace lyrebrook
