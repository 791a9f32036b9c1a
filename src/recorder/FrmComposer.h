#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/directx/DirectX8.h"
#include "platform/forms/CheckBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/ControlArray.h"
#include "platform/forms/FormInstance.h"
#include "platform/forms/Frame.h"
#include "platform/forms/Label.h"
#include "platform/forms/Line.h"
#include "platform/forms/MenuEntry.h"
#include "platform/forms/PictureBox.h"
#include "platform/forms/ScrollBar.h"
#include "platform/forms/Shape.h"
#include "platform/forms/Slider.h"
#include "platform/forms/TextBox.h"
#include "platform/forms/Timer.h"
#include "recorder/LevelBars.h"
#include "recorder/LyricTimeline.h"
#include "recorder/Playback.h"
#include "recorder/SoundNotice.h"
#include "recorder/Take.h"
#include "recorder/TakeTable.h"
#include "recorder/TrackView.h"
#include "recorder/Tracks.h"
#include "recorder/Transport.h"
#include "shell/modConfig.h"

class QBoxLayout;

namespace lyrebrook {

/// Step 4: plays the song's tracks, records voices over them and a final mix of what the card plays. Wires the units
/// of the recorder to the controls; what can be computed without a screen is theirs. All that moves is driven by one
/// timer, which reads cursors. Owns the sound objects from activation until it is unloaded, and each activation opens
/// them anew and reads all tracks from the disk. Unloading saves nothing.
class FrmComposer final : public Form {
  public:
    FrmComposer();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

    void cmdPlay_Click();
    void cmdStop_Click();
    void cmdHome_Click();

    /// False, with no message, when the file can't be deleted.
    bool deleteFile(const QString& path);

    bool playing() const { return transport_.playing; }

    MenuEntry mnuVolume, mnuVolume2;
    MenuEntry mnuEdit, mnuHome;
    MenuEntry mnuTransport, mnuPlay, mnuStop;
    MenuEntry mnuView, mnuFitView;

    Frame Frame3;
    CommandButton cmdRecord, cmdHome, cmdStop, cmdPlay;
    CheckBox cbRecord;  ///< the recording flag of the whole screen
    Frame Frame7;
    CommandButton btnIn, btnOUT, btnRepeat;
    Frame Frame4;
    Label lblHMS;
    Label lblRecording;
    Label lblNotice;

    PictureBox imgContainerA, imgSliderA, imgContainerB, imgSliderB;
    ControlArray<Shape> shpWaveform;
    ControlArray<Shape> shpTake;
    Line lnCursor;
    ScrollBar VScrollA, HScrollB;
    ControlArray<Label> lblTrackNum;
    ControlArray<CommandButton> cmdRecEnable, cmdDeleteTrack;
    Label Label1;
    Slider sldHScale;
    TextBox txtLoading;

    Frame Frame5;
    PictureBox leftVU, rightVU;
    Frame Frame6;
    CheckBox cbEnableVU;

    Frame Frame1;
    ControlArray<Slider> sLevel, sPan, sReverb;
    ControlArray<Label> lblChannel, lblVol, lblRev;
    CheckBox checkChannelMix;
    Frame Frame2;
    Slider sMaster;
    Frame frameOffset;
    TextBox Text1, Text2, Text3;
    Slider sldOffset;
    Frame Frame9;
    CheckBox chkLyrics;
    TextBox txtChord, txtLyrics;
    Frame Frame8;
    CommandButton cmdLyricAdd, cmdLyricUpdate, cmdViewLyrics, cmdRhyme;
    CommandButton cmdMixer, cmdHelpVolume, cmdHelp, btnEnd, Command1;
    Timer Timer1{50};

  private:
    enum class Saved { yes, no };

    void layOut();
    QBoxLayout* layOutTransport();
    QBoxLayout* layOutMiddle();
    QBoxLayout* layOutWords();
    QBoxLayout* layOutMixer();
    QBoxLayout* layOutBottom();
    QWidget* layOutOffset();
    QWidget* layOutLyricButtons();
    void layOutTrackView();
    void nameControls();
    void showValues();
    void connectHandlers();
    void connectMixer();

    void resizeAll();
    void placePictures();
    void placeScrollBars();
    void buildTrack(int track);
    void buildRow(int track);
    void buildStrip(int track);
    void placeBars();
    void sldHScale_Change();
    void mnuFitView_Click();
    void HScrollB_Change();
    void VScrollA_Change();
    SongBar songBar() const;

    void tellUnreadable(const std::vector<Tracks::Unreadable>& files);
    void CloseAudio();
    std::int32_t getVoiceTrackOffset();
    void saveVoiceTrackOffset();

    TrackMix mix() const;
    void applyTrackMix();
    void setPosition(double& fraction);
    void setPositionToCursor();
    void sMaster_Scroll();
    void sReverb_Click(int track);
    void sldOffset_MouseUp();
    void checkChannelMix_Click();

    void Timer1_Timer();
    void showState();
    void updateCursor();
    void imgSliderB_MouseDown(MouseButton button, int shift, Twips x, Twips y);
    void imgSliderB_MouseMove(MouseButton button, int shift, Twips x, Twips y);
    void btnIn_Click();
    void btnOUT_Click();
    void btnRepeat_Click();
    void chkLyrics_Click();
    float position() const { return tracks_.getPosition(tracks_.longestTrack()); }

    LyricTimeline::Line typedLine() const;
    void showLine(const LyricTimeline::Line& line);
    void seekLyric();
    void advanceLyric();
    void confirmLyricEdits();
    void cmdLyricAdd_Click();
    void cmdLyricUpdate_Click();
    void cmdViewLyrics_Click();
    void cmdRhyme_Click();
    bool lyricsEnabled() const { return chkLyrics.Value() == 1; }

    bool recording() const { return cbRecord.Value() == 1; }
    void cmdRecEnable_Click(int track);
    void cmdRecord_Click();
    void punchOut();
    void startTake();
    bool refusesTake();
    void CreateRecordBuffer();
    void extendRecordedWave();
    void SaveRecording();
    Saved saveTake();
    void takeOver(std::unique_ptr<DirectSoundSecondaryBuffer8> merged);
    void cmdDeleteTrack_Click(int track);

    void StartVUCapture();
    void StopVUCapture();
    void cbEnableVU_Click();

    void cmdMixer_Click();
    void Command1_Click();

    Tracks tracks_;
    Playback playback_{tracks_};
    Take take_;
    TakeTable takes_;
    Transport transport_;
    LyricTimeline lyrics_{gLyrics};
    LevelBars bars_;
    SoundNotice notice_;
    TrackView view_{{}, trackCount, 1, 0};
    float zoom_ = 1;
    float masterScale_ = 1;
    std::int32_t savedMusicLevel_ = 0;
    QStringList toldUnreadable_;
    bool unloaded_ = false;
    bool saving_ = false;

    std::unique_ptr<DirectX8> dx_;
    std::unique_ptr<DirectSound8> ds_;
    std::unique_ptr<DirectSoundCapture8> dsc_;
    std::unique_ptr<DirectSoundCaptureBuffer8> vuBuffer_;
};

extern FormInstance<FrmComposer> frmComposer;

}  // namespace lyrebrook
