#pragma once

#include <QString>
#include <cstdint>
#include <memory>

#include "backtrack/BacktrackMusic.h"
#include "platform/forms/CheckBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/ControlArray.h"
#include "platform/forms/FormInstance.h"
#include "platform/forms/Frame.h"
#include "platform/forms/Label.h"
#include "platform/forms/PictureBox.h"
#include "platform/forms/Slider.h"
#include "platform/forms/Timer.h"
#include "recorder/LevelBars.h"
#include "recorder/SoundNotice.h"

class QBoxLayout;

namespace lyrebrook {

/// Step 3: plays the backtrack through the card while it captures what the card plays, and keeps that as the song's
/// first wave; or captures an external source with the backtrack silent. Owns its sound objects from load, those of
/// capturing from activation, until it is unloaded. The end of the backtrack stops and saves by itself.
class FrmMixer final : public Form, private DirectXEvent8 {
  public:
    FrmMixer();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

    void cmdStop_Click();

    Label lblRecording;
    Label lblHMS;
    Label lblNotice;
    CommandButton cmdPlay, cmdStop, cmdListen;
    CheckBox chkLoop;
    CheckBox checkSource;
    Label Label4;
    CheckBox chkSynth;
    Frame fraTempo;
    Slider sldTempo;
    ControlArray<Label> lblTempo;  ///< 10 "Fast", 11 "Normal", 12 "Slow"
    Frame Frame5;
    PictureBox leftVU, rightVU;
    CheckBox cbEnableVU;
    CommandButton cmdMixer, cmdHelp, btnEnd;
    Timer Timer1{50};

    /// True from Record or Listen to Stop, whether sound plays or not.
    bool playing = false;

  private:
    enum class TrackMode { backTrack, recordedTrack };

    void layOut();
    QBoxLayout* layOutTransport();
    QBoxLayout* layOutTempo();
    void layOutLevels();
    void connectHandlers();

    void cmdPlay_Click();
    void cmdListen_Click();
    void sldTempo_Change();
    void cbEnableVU_Click();
    void cmdMixer_Click();
    void Timer1_Timer();
    void showState();

    void InitAudio();
    bool LoadTrack();
    void playSegment();
    void CloseAudio();
    void EnableTempo(bool enable);
    void EnablePlayUI(bool enable);

    void CreateRecordBuffer(float seconds);
    void StartRecording();
    void SaveRecording();
    std::unique_ptr<DirectSoundSecondaryBuffer8> GetSoundBufferFromCapture(DirectSoundCaptureBuffer8* capture);
    void StartVUCapture();
    void StopVUCapture();

    void DXCallback(std::int32_t eventId) override;
    void DirectXEvent8_DXCallback();

    BacktrackMusic music_;
    std::unique_ptr<DirectSound8> ds_;
    std::unique_ptr<DirectSoundCapture8> dsc_;
    std::unique_ptr<DirectSoundCaptureBuffer8> recordBuffer_;
    std::unique_ptr<DirectSoundCaptureBuffer8> vuBuffer_;
    QString backtrackPath_;
    TrackMode trackMode_ = TrackMode::backTrack;
    LevelBars bars_;
    SoundNotice notice_;
    Event<> segmentMessage_;  ///< what the performance tells, as an event of the form
};

extern FormInstance<FrmMixer> frmMixer;

}  // namespace lyrebrook
