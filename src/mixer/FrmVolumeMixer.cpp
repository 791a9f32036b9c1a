#include "mixer/FrmVolumeMixer.h"

#include "backtrack/FrmMixer.h"
#include "mixer/masterMixer.h"
#include "mixer/mixerMessages.h"
#include "mixer/waveInput.h"
#include "platform/base/Numbers.h"
#include "recorder/FrmComposer.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"

namespace lyrebrook {

FormInstance<FrmVolumeMixer> frmVolumeMixer;

void FrmVolumeMixer::connectHandlers() {
    on(radDevice, &OptionButton::Click, &FrmVolumeMixer::radDevice_Click);
    on(HScroll1.Scroll, [this] { Picture2.setLeft(toTwips(-HScroll1.Value())); });
    on(VScroll1.Scroll, [this] { Picture2.setTop(toTwips(-VScroll1.Value())); });
    on(HScroll2.Scroll, [this] { Picture4.setLeft(toTwips(-HScroll2.Value())); });
    on(VScroll2.Scroll, [this] { Picture4.setTop(toTwips(-VScroll2.Value())); });
    on(chkPlaybackMute, &CheckBox::Click, &FrmVolumeMixer::chkPlaybackMute_Click);
    on(chkRecordSelect, &CheckBox::Click, &FrmVolumeMixer::chkRecordSelect_Click);
    on(sldPlaybackVolume, &Slider::Change, &FrmVolumeMixer::sldPlaybackVolume_Change);
    on(sldRecordVolume, &Slider::Change, &FrmVolumeMixer::sldRecordVolume_Change);
    on(sldPlaybackBalance, &Slider::Change, &FrmVolumeMixer::sldPlaybackBalance_Change);
    on(sldRecordBalance, &Slider::Change, &FrmVolumeMixer::sldRecordBalance_Change);
    on(cmdSelectMixerDev.Click, &FrmVolumeMixer::cmdSelectMixerDev_Click);
    on(cmdSelect.Click, &FrmVolumeMixer::cmdSelect_Click);
    on(cmdHelp.Click, [] { frmIntro->openHelp(10); });
    on(cmdClose.Click, &FrmVolumeMixer::cmdClose_Click);
}

void FrmVolumeMixer::Form_Load() {
    if (gMixerDeviceIndex < 1) gMixerDeviceIndex = 0;
    canBlink_ = true;
}

void FrmVolumeMixer::Form_Unload() {
    unloaded_ = true;
    closeMasterMixer();
}

void FrmVolumeMixer::cmdClose_Click() {
    // Asking a screen that isn't loaded would load it.
    if (frmMixer.isLoaded() && frmMixer->Visible() && frmMixer->playing) frmMixer->cmdStop_Click();
    if (frmComposer.isLoaded() && frmComposer->Visible() && frmComposer->playing()) frmComposer->cmdStop_Click();
    Hide();
}

void FrmVolumeMixer::closeInput() {
    cmdSelect.setEnabled(false);
    setMousePointer(MousePointer::hourglass);
    closeWaveIn(gWaveInHandle);
    setMousePointer(MousePointer::standard);
    cmdSelect.setEnabled(true);
}

void FrmVolumeMixer::cmdSelectMixerDev_Click() {
    closeInput();
    gMixerDeviceIndex = toInt16(lstMixerDevs.ListIndex());
    frmVolumeMixer.Unload();
    showMasterMixer();
}

void FrmVolumeMixer::cmdSelect_Click() {
    closeInput();
    gMixerDeviceIndex = toInt16(lstWaveInDevs.ListIndex());
    frmVolumeMixer.Unload();
    frmVolumeMixer.Show();
}

}  // namespace lyrebrook
