#include "mixer/FrmVolumeMixer.h"
#include "mixer/modMixer.h"
#include "mixer/presets.h"
#include "platform/base/Numbers.h"
#include "platform/forms/Desktop.h"

namespace lyrebrook {
namespace {

constexpr int microphonePreset = 1;

std::int32_t idIn(const TextBox& box) {
    return textToInt32(box.Text().toStdString());
}

/// A line without a volume keeps its level.
void setLevel(const TextBox& lineId, double part) {
    LineVolume volume;
    if (getLineVolume(gMixerHandle, idIn(lineId), volume))
        setLineVolume(gMixerHandle, idIn(lineId), partOf(part, volume.max));
}

Colour feedbackColour(int index) {
    return index == microphonePreset ? yellow : cyan;
}

}  // namespace

// Boxes are set, and their own click events write to the mixer: a box that doesn't change writes nothing.
void FrmVolumeMixer::radDevice_Click(int index) {
    txtFeedback.setForeColor(cyan);
    const bool anyPlayback = setPlaybackLines(preset(index));
    const bool anyRecording = setRecordingLines(preset(index));
    txtFeedback.setForeColor(feedbackColour(index));
    if (!anyPlayback && !anyRecording) setDefaultLevels();
    if (unloaded_) return;
    openCommonLines(index);
    blinkFeedback(index);
}

bool FrmVolumeMixer::setPlaybackLines(const Preset& preset) {
    bool anyWanted = false;
    for (int i = 0; i < playbackLineCount; ++i) {
        const bool wanted = wantsForPlayback(preset, fraPlaybackControl[i].Caption());
        setLevel(txtPlaybackLineID[i], wanted ? preset.playbackLevel : 0);
        chkPlaybackMute[i].setValue(wanted ? 0 : 1);
        anyWanted = anyWanted || wanted;
    }
    return anyWanted;
}

bool FrmVolumeMixer::setRecordingLines(const Preset& preset) {
    bool anyWanted = false;
    for (int i = 0; i < recordLineCount; ++i) {
        const bool wanted = wantsForRecording(preset, fraRecordControl[i].Caption());
        setLevel(txtRecordLineID[i], wanted ? presetRecordingLevel : 0);
        if (!wanted) continue;
        chkRecordSelect[i].setValue(1);
        anyWanted = true;
        txtFeedback.setText(preset.hint);
    }
    return anyWanted;
}

/// For a card that calls its lines by other names.
void FrmVolumeMixer::setDefaultLevels() {
    for (int i = 0; i < playbackLineCount; ++i) {
        setLevel(txtPlaybackLineID[i], 1);
        chkPlaybackMute[i].setValue(0);
    }
    for (int i = 0; i < recordLineCount; ++i) {
        const bool isWave = fraRecordControl[i].Caption().contains(QStringLiteral("Wave"));
        setLevel(txtRecordLineID[i], isWave ? presetRecordingLevel : 0);
        if (!isWave) continue;
        chkRecordSelect[i].setValue(1);
        txtFeedback.setText(QStringLiteral(
            "Playback volumes turned up for ALL instruments. Record levels set for 'WAVE' recording. Adjust BLUE "
            "sliders to raise PLAYBACK volume. Adjust RED sliders to raise RECORDING volume..."));
    }
    MsgBox(
        QStringLiteral("This feature not supported by your sound card. Recording and Playback volumes have been "
                       "set to default levels."));
}

void FrmVolumeMixer::openCommonLines(int index) {
    for (int i = 0; i < playbackLineCount; ++i) {
        if (!isCommonLine(fraPlaybackControl[i].Caption())) continue;
        setLevel(txtPlaybackLineID[i], index == microphonePreset ? preset(index).playbackLevel : 1);
        chkPlaybackMute[i].setValue(0);
    }
}

void FrmVolumeMixer::blinkFeedback(int index) {
    if (!canBlink_) return;
    canBlink_ = false;
    constexpr int times = 3;
    for (int i = 0; i < times; ++i) {
        waitASecond();
        if (unloaded_) return;
        txtFeedback.setForeColor(black);
        waitASecond();
        if (unloaded_) return;
        txtFeedback.setForeColor(feedbackColour(index));
    }
    canBlink_ = true;
}

/// To the next turn of the clock's second hand; events go on meanwhile.
void FrmVolumeMixer::waitASecond() {
    const qint64 start = desktop().now().toSecsSinceEpoch();
    desktop().waitWhile([&] { return !unloaded_ && desktop().now().toSecsSinceEpoch() - start < 1; });
}

}  // namespace lyrebrook
