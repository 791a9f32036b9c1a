#pragma once

#include <QString>

namespace lyrebrook {

/// Whether listening treats a backtrack as a standard MIDI file, by its path's ending: .mid or .midi in any case.
bool isMidiForListening(const QString& path);

/// The same for recording, where .rmi counts too.
bool isMidiForRecording(const QString& path);

/// Whether the tempo controls are on for a backtrack: everything but .wav.
bool hasTempo(const QString& path);

}  // namespace lyrebrook
