#include "mixer/FrmVolumeMixer.h"
#include "mixer/levelColumn.h"
#include "mixer/modMixer.h"

namespace lyrebrook {
namespace {

std::int32_t volumeOf(const Slider& slider) {
    return turnedOver(slider.Value(), slider.Min(), slider.Max());
}

std::int32_t lineOf(const std::vector<std::int32_t>& ids, int index) {
    return ids.at(static_cast<std::size_t>(index));
}

}  // namespace

LineRow FrmVolumeMixer::playbackRow() {
    return {fraPlaybackControl, sldPlaybackVolume, sldPlaybackBalance, txtPlaybackVolume, chkPlaybackMute, lblPlay,
            txtPlaybackLineID,  Picture1,          Picture2,           HScroll1,          VScroll1};
}

LineRow FrmVolumeMixer::recordingRow() {
    return {fraRecordControl, sldRecordVolume, sldRecordBalance, txtRecordVolume, chkRecordSelect, lblRecord,
            txtRecordLineID,  Picture3,        Picture4,         HScroll2,        VScroll2};
}

void FrmVolumeMixer::addPlaybackLines(std::int16_t index, const QString& lineName) {
    playbackRow().add(index, lineName);
}

void FrmVolumeMixer::addRecordingLines(std::int16_t index, const QString& lineName) {
    recordingRow().add(index, lineName);
}

void FrmVolumeMixer::resetSliderBoxes() {
    playbackRow().layScrollBars();
    recordingRow().layScrollBars();
}

void FrmVolumeMixer::sldPlaybackVolume_Change(int index) {
    if (gSettingControl) return;
    setLineVolume(gMixerHandle, lineOf(gPlaybackLineIDs, index), volumeOf(sldPlaybackVolume[index]));
    playbackRow().showPercent(index);
}

void FrmVolumeMixer::sldRecordVolume_Change(int index) {
    if (gSettingControl) return;
    setLineVolume(gMixerHandle, lineOf(gRecordLineIDs, index), volumeOf(sldRecordVolume[index]));
    recordingRow().showPercent(index);
}

void FrmVolumeMixer::sldPlaybackBalance_Change(int index) {
    if (gSettingControl) return;
    setLineBalance(gMixerHandle, lineOf(gPlaybackLineIDs, index), sldPlaybackBalance[index].Value());
}

void FrmVolumeMixer::sldRecordBalance_Change(int index) {
    if (gSettingControl) return;
    setLineBalance(gMixerHandle, lineOf(gRecordLineIDs, index), sldRecordBalance[index].Value());
}

void FrmVolumeMixer::chkPlaybackMute_Click(int index) {
    CheckBox& box = chkPlaybackMute[index];
    const bool muted = box.Value() == 1;
    if (!gSettingControl) setLineMute(gMixerHandle, lineOf(gPlaybackLineIDs, index), muted ? -1 : 0);
    box.setBackColor(muted ? inactiveBorder : cyan);
    box.setCaption(muted ? QStringLiteral("Muted") : QStringLiteral("Mute"));
}

void FrmVolumeMixer::chkRecordSelect_Click(int index) {
    CheckBox& box = chkRecordSelect[index];
    if (!gSettingControl) {
        if (box.Value() == 1) setLineSelected(gMixerHandle, lineOf(gRecordLineIDs, index), -1);
        for (int other = 0; other < chkRecordSelect.Count(); ++other) {
            if (other == index) continue;
            chkRecordSelect[other].setValue(0);  // whose own click clears in its turn, this box too
            chkRecordSelect[other].setBackColor(inactiveBorder);
        }
    }
    box.setBackColor(lightRed);
}

}  // namespace lyrebrook
