#include "mixer/presets.h"

#include <algorithm>
#include <array>

#include "platform/base/Numbers.h"

namespace lyrebrook {
namespace {

bool containsAny(const QString& name, const QStringList& words) {
    return std::ranges::any_of(words, [&](const QString& word) { return name.contains(word); });
}

QString levelsSetFor(const char* source) {
    return QStringLiteral(
               "Volume levels set for '%1' recording. Adjust BLUE sliders to raise PLAYBACK / RED to raise RECORDING "
               "volume...")
        .arg(QString::fromLatin1(source));
}

std::array<Preset, presetCount> makePresets() {
    return {{
        {.playbackWords = {"Mic"},
         .playbackWordsUnwanted = true,
         .recordingWords = {"Mix", "Stereo", "Mono", "Wave"},
         .hint = "Volume levels now set for 'BACKTRACK' recording. Adjust BLUE sliders to raise PLAYBACK / RED to "
                 "raise RECORDING volume..."},
        {.playbackWords = {"Mic"},
         .recordingWords = {"Mic"},
         .playbackLevel = 0.2,
         .hint = "Levels for'MICROPHONE' set very low. Adjust BLUE and RED sliders upwards if sound cannot be "
                 "heard..."},
        {.playbackWords = {"CD"}, .recordingWords = {"CD"}, .hint = levelsSetFor("CD")},
        {.playbackWords = {"Aux", "Line"}, .recordingWords = {"Line"}, .hint = levelsSetFor("EXTERNAL DEVICE")},
        {.playbackWords = {"Synth", "Wave"},
         .recordingWords = {"Stereo", "Wave"},
         .hint = levelsSetFor("OTHER SOFTWARE")},
    }};
}

}  // namespace

const Preset& preset(int index) {
    static const auto presets = makePresets();
    return presets.at(static_cast<std::size_t>(index));
}

bool wantsForPlayback(const Preset& preset, const QString& lineName) {
    return containsAny(lineName, preset.playbackWords) != preset.playbackWordsUnwanted;
}

bool wantsForRecording(const Preset& preset, const QString& lineName) {
    return containsAny(lineName, preset.recordingWords);
}

bool isCommonLine(const QString& lineName) {
    return containsAny(lineName, {"Mix", "Rear", "Front", "Synth", "Wave", "Master"});
}

std::int32_t partOf(double part, std::int32_t maximum) {
    return toInt32(part * maximum);
}

}  // namespace lyrebrook
