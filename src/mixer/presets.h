#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

namespace lyrebrook {

/// What a source of sound needs of the card's lines, which are known by the words in their short names. Case counts.

inline constexpr int presetCount = 5;

/// One of the five presets, `radDevice`'s index.
struct Preset {
    QStringList playbackWords;
    bool playbackWordsUnwanted = false;  ///< wanted is every line without them
    QStringList recordingWords;
    double playbackLevel = 1;  ///< of a wanted playback line, as a part of its maximum
    QString hint;
};
const Preset& preset(int index);

inline constexpr double presetRecordingLevel = 0.85;

bool wantsForPlayback(const Preset& preset, const QString& lineName);
bool wantsForRecording(const Preset& preset, const QString& lineName);

/// Lines through which everything passes, and so are open in every preset.
bool isCommonLine(const QString& lineName);

/// That part of a line's maximum.
std::int32_t partOf(double part, std::int32_t maximum);

}  // namespace lyrebrook
