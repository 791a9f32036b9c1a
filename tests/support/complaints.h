#pragma once

#include <QString>
#include <QtGlobal>

namespace lyrebrook {

/// Whether a message of Qt's is about something that went wrong. The offscreen platform remarks on each window that it
/// can't raise or size it; that is no fault of the program.
inline bool isComplaint(QtMsgType type, const QString& message) {
    return type != QtDebugMsg && type != QtInfoMsg &&
           !message.startsWith(QLatin1String("This plugin does not support"));
}

}  // namespace lyrebrook
