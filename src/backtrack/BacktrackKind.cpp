#include "backtrack/BacktrackKind.h"

namespace lyrebrook {

bool isMidiForListening(const QString& path) {
    return path.endsWith(u".mid", Qt::CaseInsensitive) || path.endsWith(u".midi", Qt::CaseInsensitive);
}

bool isMidiForRecording(const QString& path) {
    return isMidiForListening(path) || path.endsWith(u".rmi", Qt::CaseInsensitive);
}

bool hasTempo(const QString& path) {
    return !path.endsWith(u".wav", Qt::CaseInsensitive);
}

}  // namespace lyrebrook
