#include "recorder/soundDevices.h"

#include "platform/base/RuntimeError.h"
#include "platform/forms/Desktop.h"

namespace lyrebrook {
namespace {

/// A screen that can't reach the card has nothing to do: there is nothing to save either.
[[noreturn]] void endWithoutDevice(const char* purpose, const RuntimeError& error) {
    MsgBox(QStringLiteral("Unable to initialize DirectSound %1:\r\n\r\nErr #%2: %3.")
               .arg(QString::fromLatin1(purpose))
               .arg(error.number())
               .arg(QString::fromStdString(error.description())),
           vbCritical, QStringLiteral("Sorry"));
    endProgram();
}

/// Empty when it is saved, else what is to be told.
QString failureToSave(const DirectSoundSecondaryBuffer8& sound, const QString& path) {
    try {
        sound.SaveToFile(path.toStdString());
        return {};
    } catch (const RuntimeError& error) {
        return QStringLiteral(
                   "Song data could not be saved. Is the file open or locked by another application? Error: ") +
               QString::number(error.number()) + QStringLiteral(" | Desc: ") +
               QString::fromStdString(error.description());
    }
}

}  // namespace

std::unique_ptr<DirectSound8> openPlayback(DirectX8& dx) {
    try {
        return dx.DirectSoundCreate({});
    } catch (const RuntimeError& error) {
        endWithoutDevice("playback", error);
    }
}

std::unique_ptr<DirectSoundCapture8> openRecording(DirectX8& dx) {
    try {
        return dx.DirectSoundCaptureCreate({});
    } catch (const RuntimeError& error) {
        endWithoutDevice("recording", error);
    }
}

bool saveSound(const DirectSoundSecondaryBuffer8& sound, const QString& path) {
    const QString failure = failureToSave(sound, path);
    if (!failure.isEmpty()) MsgBox(failure);
    return failure.isEmpty();
}

bool saveSoundOrAsk(const DirectSoundSecondaryBuffer8& sound, const QString& path) {
    const QString question = QStringLiteral("\r\n\r\nThe take is still there. Try to save it again?");
    for (;;) {
        const QString failure = failureToSave(sound, path);
        if (failure.isEmpty()) return true;
        if (MsgBox(failure + question, vbYesNo + vbExclamation) != vbYes) return false;
    }
}

}  // namespace lyrebrook
