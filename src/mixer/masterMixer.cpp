#include "mixer/masterMixer.h"

#include "mixer/FrmVolumeMixer.h"
#include "mixer/deviceLists.h"
#include "mixer/levelMeters.h"
#include "mixer/mixerMessages.h"
#include "mixer/mixerPanels.h"
#include "mixer/modMixer.h"
#include "mixer/waveInput.h"
#include "platform/base/Numbers.h"
#include "platform/forms/Desktop.h"
#include "shell/modConfig.h"

namespace lyrebrook {

namespace {

void resetState() {
    gMixerDeviceID = gMixerDeviceIndex;
    gWaveInDeviceID = WAVE_MAPPER;
    gSettingControl = false;
    gCapturing = false;
    gMixerHandle = 0;
    gWaveInHandle = 0;
    gRecFormatIndex = 0;
    gOldWindowProc = nullptr;
}

bool openMixer() {
    HWND const window = frmVolumeMixer->messageWindow();
    gOldWindowProc = SetWindowLongA(window, GWL_WNDPROC, mixerWindowProc);
    return mixerOpen(gMixerHandle, gMixerDeviceID, window, 0, CALLBACK_WINDOW) == MMSYSERR_NOERROR;
}

/// One panel more than lines; filling the tables hides it.
void makePanels(FrmVolumeMixer& form) {
    const QString noName = QStringLiteral("notSet");
    form.Picture2.setWidth(LineRow::emptyStripWidth);
    form.Picture4.setWidth(LineRow::emptyStripWidth);
    form.playbackLineCount = countMixerLines(gMixerHandle, MIXERLINE_COMPONENTTYPE_DST_SPEAKERS);
    for (std::int16_t i = 0; i <= form.playbackLineCount; ++i) form.addPlaybackLines(i, noName);
    const std::int16_t recordLineCount = countMixerLines(gMixerHandle, MIXERLINE_COMPONENTTYPE_DST_WAVEIN);
    form.recordLineCount = recordLineCount;
    for (std::int16_t i = 0; i <= recordLineCount; ++i) form.addRecordingLines(i, noName);
}

void listDevices(FrmVolumeMixer& form) {
    form.cmdSelectMixerDev.setEnabled(false);
    if (listMixerDevices() > 0) {
        form.lstMixerDevs.setListIndex(0);
        form.cmdSelectMixerDev.setEnabled(true);
        loadMixerLines(gMixerHandle, {gPlaybackLineCount, gPlaybackLineIDs}, {gRecordLineCount, gRecordLineIDs});
    }
    form.cmdSelectWaveInDev.setEnabled(false);
    if (listWaveInDevices() <= 0) return;
    form.lstWaveInDevs.setListIndex(0);
    form.cmdSelectWaveInDev.setEnabled(true);
    form.cmdSelectRecFormat.setValue(false);
    if (listRecFormats() <= 0) return;
    form.lstRecFormats.setListIndex(0);
    form.cmdSelectRecFormat.setEnabled(true);
}

}  // namespace

void enterMasterMixer() {
    if (gMixerOpen)
        frmVolumeMixer.Show();
    else
        showMasterMixer();
}

void showMasterMixer() {
    gMixerOpen = true;
    openMasterMixer();
    desktop().waitWhile([] { return gMixerOpen; });
}

void openMasterMixer() {
    resetState();
    frmVolumeMixer.Load();
    if (openMixer()) {
        makePanels(*frmVolumeMixer);
        buildVUColors(toInt32(frmVolumeMixer->picLeftVUMeter.ScaleHeight()));
        listDevices(*frmVolumeMixer);
        frmVolumeMixer.Show();
    } else {
        MsgBox(QStringLiteral("Couldn't Open The Mixer! Please check that you have a sound card installed."),
               vbCritical, QStringLiteral("Error"));
        closeMasterMixer();
    }
    frmVolumeMixer->resetSliderBoxes();
}

void closeMasterMixer() {
    if (gWaveInHandle != 0) closeWaveIn(gWaveInHandle);
    if (gMixerHandle != 0) mixerClose(gMixerHandle);
    if (gOldWindowProc != nullptr) SetWindowLongA(frmVolumeMixer->messageWindow(), GWL_WNDPROC, gOldWindowProc);
    gMixerOpen = false;
}

}  // namespace lyrebrook
