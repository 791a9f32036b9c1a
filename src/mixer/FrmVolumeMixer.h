#pragma once

#include <QString>
#include <cstdint>

#include "mixer/LineRow.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/FormInstance.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/OptionButton.h"
#include "platform/winmm/MessageWindow.h"

class QBoxLayout;

namespace lyrebrook {

struct Preset;

/// "Master Mixer Control": a panel for each line that the card reports, five presets that set all lines for one source,
/// and two level columns that the recording screens feed. Opened and filled by the procedures of masterMixer.h; Close
/// only hides it, and the steps' screens unload it when they go. Owns the window end at which the mixer's change
/// messages arrive. What was set stays on the card.
class FrmVolumeMixer final : public Form {
  public:
    FrmVolumeMixer();

    void Form_Load() override;
    void Form_Unload() override;

    /// Make sure that a panel is there and shows. Each widens its strip.
    void addPlaybackLines(std::int16_t index, const QString& lineName);
    void addRecordingLines(std::int16_t index, const QString& lineName);

    /// Lays the scroll bars along the viewports, which from then on count in pixels.
    void resetSliderBoxes();

    LineRow playbackRow();
    LineRow recordingRow();

    HWND messageWindow() { return messages_.handle(); }

    std::int16_t playbackLineCount = 0;  ///< panels of lines, as counted when the screen opened
    std::int32_t recordLineCount = 0;

    Frame Frame3;
    Label Label16, Label13;
    ControlArray<OptionButton> radDevice;
    Label Label12, Label14, Label11, Label10, Label15;

    Label Label20, Label24;
    PictureBox Picture1, Picture2, Picture3, Picture4;
    ScrollBar HScroll1, VScroll1, HScroll2, VScroll2;
    ControlArray<Frame> fraPlaybackControl, fraRecordControl;
    ControlArray<Slider> sldPlaybackVolume, sldRecordVolume;
    ControlArray<Slider> sldPlaybackBalance, sldRecordBalance;
    ControlArray<TextBox> txtPlaybackVolume, txtRecordVolume;
    ControlArray<CheckBox> chkPlaybackMute, chkRecordSelect;
    ControlArray<Label> lblPlay, lblRecord;
    ControlArray<TextBox> txtPlaybackLineID, txtRecordLineID;  ///< hidden store of the lines' IDs, as decimal text

    Frame fraVUMeter;
    PictureBox picLeftVUMeter, picRightVUMeter;
    TextBox txtLeftVUMeter, txtRightVUMeter;
    Label Label9;

    Frame Frame2;
    ListBox lstMixerDevs;
    CommandButton cmdSelectMixerDev;
    Frame Frame4;
    TextBox txtFeedback;
    CommandButton cmdHelp, cmdClose;

    // Below the lower edge of the form, out of the user's sight.
    Label Label17;
    ListBox lstWaveInDevs;
    CommandButton cmdSelectWaveInDev;
    Label Label19;
    ListBox lstRecFormats;
    CommandButton cmdSelectRecFormat;
    ListBox lstWaveInDevs_OLD;
    CommandButton cmdSelect;

  private:
    void layOut();
    QBoxLayout* layOutPresets();
    QBoxLayout* layOutRows();
    QBoxLayout* layOutMeters();
    QBoxLayout* layOutBottom();
    void layOutViewports();
    void layOutBelowTheEdge();
    void nameControls();
    void connectHandlers();

    void chkPlaybackMute_Click(int index);
    void chkRecordSelect_Click(int index);
    void sldPlaybackVolume_Change(int index);
    void sldRecordVolume_Change(int index);
    void sldPlaybackBalance_Change(int index);
    void sldRecordBalance_Change(int index);

    void radDevice_Click(int index);
    bool setPlaybackLines(const Preset& preset);
    bool setRecordingLines(const Preset& preset);
    void setDefaultLevels();
    void openCommonLines(int index);
    void blinkFeedback(int index);
    void waitASecond();

    void cmdClose_Click();
    void cmdSelectMixerDev_Click();
    void cmdSelect_Click();
    void closeInput();

    MessageWindow messages_;
    bool canBlink_ = false;
    bool unloaded_ = false;
};

extern FormInstance<FrmVolumeMixer> frmVolumeMixer;

}  // namespace lyrebrook
