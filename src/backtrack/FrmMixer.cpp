#include "backtrack/FrmMixer.h"

#include <vector>

#include "backtrack/BacktrackKind.h"
#include "mixer/FrmVolumeMixer.h"
#include "mixer/levelMeters.h"
#include "mixer/masterMixer.h"
#include "platform/base/RuntimeError.h"
#include "platform/files/App.h"
#include "platform/files/FileContent.h"
#include "platform/files/Settings.h"
#include "platform/forms/Boundary.h"
#include "platform/forms/Desktop.h"
#include "platform/sound/SoundSystem.h"
#include "platform/sound/SoundTransaction.h"
#include "recorder/FrmComposer.h"
#include "recorder/levelBarPictures.h"
#include "recorder/noticeLine.h"
#include "recorder/soundBuffers.h"
#include "recorder/soundDevices.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"

namespace lyrebrook {

FormInstance<FrmMixer> frmMixer;

namespace {

constexpr float longestRecording = 420;  // seconds
constexpr std::int32_t normalTempo = 10;

}  // namespace

void FrmMixer::connectHandlers() {
    on(cmdPlay.Click, &FrmMixer::cmdPlay_Click);
    on(cmdStop.Click, &FrmMixer::cmdStop_Click);
    on(cmdListen.Click, &FrmMixer::cmdListen_Click);
    on(sldTempo.Change, &FrmMixer::sldTempo_Change);
    on(sldTempo.Scroll, &FrmMixer::sldTempo_Change);
    on(cbEnableVU.Click, &FrmMixer::cbEnableVU_Click);
    on(Timer1.Tick, &FrmMixer::Timer1_Timer);
    on(cmdMixer.Click, &FrmMixer::cmdMixer_Click);
    on(cmdHelp.Click, [] { frmIntro->openHelp(3); });
    on(btnEnd.Click, [] { frmMixer.Unload(); });
    on(segmentMessage_, &FrmMixer::DirectXEvent8_DXCallback);
}

void FrmMixer::Form_Load() {
    if (gSongName.isEmpty()) gSongName = QStringLiteral("tempTest");
    if (gSongsFolder.isEmpty()) gSongsFolder = App::Path() + QStringLiteral("/songs/");
    InitAudio();
    backtrackPath_ = gBacktrackFile;
    if (backtrackPath_.isEmpty()) {
        gTracksFolder = App::Path() + QStringLiteral("/tracks/Version1/");
        backtrackPath_ = gTracksFolder + QStringLiteral("Demo 1.mid");
    }
    trackMode_ = TrackMode::backTrack;
    if (!LoadTrack()) {
        MsgBox(QStringLiteral("Could not load selected backtrack file - please select file in Step 2 first!"));
    }
    checkSource.setValue(0);
}

void FrmMixer::Form_Activate() {
    frmComposer.Unload();  // the two never hold the sound objects together
    setMousePointer(MousePointer::hourglass);
    DoEvents();
    if (!music_.dx) return;  // unloaded by what was pending
    ds_ = openPlayback(*music_.dx);
    ds_->SetCooperativeLevel(static_cast<std::int64_t>(window().winId()), DSSCL_PRIORITY);
    dsc_ = openRecording(*music_.dx);
    if (!playing && !vuBuffer_) StartVUCapture();
    Timer1.setEnabled(true);
    leftVU.setVisible(true);
    rightVU.setVisible(true);
    setMousePointer(MousePointer::standard);
}

void FrmMixer::Form_Unload() {
    Timer1.setEnabled(false);
    frmVolumeMixer.Unload();
    leftVU.setVisible(false);
    rightVU.setVisible(false);
    StopVUCapture();
    CloseAudio();
    (frmIntro->checkFileExists() ? frmIntro->picStatusY : frmIntro->picStatusN)[2].ZOrder();
}

void FrmMixer::InitAudio() {
    try {
        music_.open(static_cast<std::int64_t>(window().winId()), *this);
    } catch (const RuntimeError&) {
        MsgBox(QStringLiteral("Could not initialize DirectMusic. Please make sure that DirectX 8.1 is installed."
                              "\r\nThis program will end."),
               vbInformation, QStringLiteral("Exiting..."));
        CloseAudio();
        frmMixer.Unload();
        endProgram();
    }
}

bool FrmMixer::LoadTrack() {
    try {
        if (playing) cmdStop_Click();
        if (music_.seg) music_.seg->Unload(music_.perf->GetDefaultAudioPath());
        music_.seg.reset();
        const bool isBacktrack = trackMode_ == TrackMode::backTrack;
        if (isBacktrack) EnableTempo(hasTempo(backtrackPath_));
        const QString recorded = App::Path() + QStringLiteral("/songs/") + gSongName + QStringLiteral("_1.wav");
        music_.load(isBacktrack ? backtrackPath_ : recorded);
        if (isBacktrack && isMidiForRecording(backtrackPath_)) music_.seg->SetStandardMidiFile();
        EnablePlayUI(true);
        sldTempo.setValue(normalTempo);
        sldTempo_Change();
        return true;
    } catch (const RuntimeError&) {
        music_.seg.reset();
        return false;
    }
}

void FrmMixer::EnableTempo(bool enable) {
    constexpr int ticksBelow = 0;
    constexpr int noTicks = 3;
    fraTempo.setEnabled(enable);
    sldTempo.setEnabled(enable);
    for (const int index : {12, 11, 10}) lblTempo[index].setEnabled(enable);
    sldTempo.setTickStyle(enable ? ticksBelow : noTicks);
}

void FrmMixer::EnablePlayUI(bool enable) {
    chkLoop.setEnabled(enable);
    cmdStop.setEnabled(!enable);
    cmdPlay.setEnabled(enable);
    if (!enable) cmdStop.SetFocus();
}

void FrmMixer::sldTempo_Change() {
    music_.perf->SetMasterTempo(static_cast<float>(sldTempo.Value()) / normalTempo);
}

void FrmMixer::cmdPlay_Click() {
    if (trackMode_ == TrackMode::recordedTrack) {
        trackMode_ = TrackMode::backTrack;
        if (!LoadTrack()) {
            MsgBox(QStringLiteral("Could not load backTrack file!"));
            return;
        }
    }
    StopVUCapture();
    // Music and capture start on one frame, so the recording holds the backtrack's first sound.
    const SoundTransaction together(SoundSystem::engine());
    if (music_.seg) {
        playSegment();
        EnablePlayUI(false);
        playing = true;
    }
    lblRecording.setVisible(true);
    StartRecording();
}

void FrmMixer::cmdListen_Click() {
    if (trackMode_ == TrackMode::backTrack) {
        trackMode_ = TrackMode::recordedTrack;
        if (!LoadTrack()) {
            MsgBox(QStringLiteral("Could not load recorded file - you must record something before listening back!"));
            return;
        }
    }
    StopVUCapture();
    if (!music_.seg) return;
    playSegment();
    lblRecording.setVisible(true);
    EnablePlayUI(false);
    playing = true;
}

void FrmMixer::playSegment() {
    constexpr std::int32_t forEver = -1;
    music_.seg->SetRepeats(chkLoop.Value() == 1 ? forEver : 0);
    if (checkSource.Value() != 1) music_.perf->PlaySegmentEx(*music_.seg);
}

void FrmMixer::cmdStop_Click() {
    playing = false;
    if (music_.seg) music_.perf->StopEx(*music_.seg);
    EnablePlayUI(true);
    if (trackMode_ == TrackMode::backTrack) SaveRecording();
    lblRecording.setVisible(false);
    if (dsc_) StartVUCapture();
}

void FrmMixer::DXCallback(std::int32_t) {
    fromQt([this] { segmentMessage_.fire(); });
}

void FrmMixer::DirectXEvent8_DXCallback() {
    DMUS_NOTIFICATION_PMSG message;
    const bool read = music_.perf->GetNotificationPMSG(message);
    if (read && message.lNotificationOption != DMUS_NOTIFICATION_SEGEND) return;
    cmdStop_Click();
    EnablePlayUI(true);
}

void FrmMixer::CreateRecordBuffer(float seconds) {
    if (recordBuffer_) recordBuffer_->Stop();
    recordBuffer_.reset();
    recordBuffer_ = dsc_->CreateCaptureBuffer(captureDescription(seconds));
}

void FrmMixer::StartRecording() {
    CreateRecordBuffer(longestRecording);
    recordBuffer_->Start(0);
}

void FrmMixer::SaveRecording() {
    lblRecording.setVisible(true);
    lblRecording.setForeColor(black);
    lblRecording.setCaption(QStringLiteral("S A V I N G"));
    DoEvents();
    if (!music_.dx) return;  // closed meanwhile, like any recording that runs
    setMousePointer(MousePointer::hourglass);
    if (recordBuffer_) recordBuffer_->Stop();
    const auto recorded = GetSoundBufferFromCapture(recordBuffer_.get());
    if (!recorded) {
        MsgBox(QStringLiteral("Recording failed. Possibly, out of buffer space."), vbCritical);
    } else if (!saveSound(*recorded, trackFilePath(1))) {
        setMousePointer(MousePointer::standard);
        return;
    }
    if (recordBuffer_) recordBuffer_->Stop();
    recordBuffer_.reset();
    setMousePointer(MousePointer::standard);
}

std::unique_ptr<DirectSoundSecondaryBuffer8> FrmMixer::GetSoundBufferFromCapture(DirectSoundCaptureBuffer8* capture) {
    if (!capture) return nullptr;
    capture->Stop();
    DSCURSORS cursors;
    capture->GetCurrentPosition(cursors);
    if (cursors.lWrite == 0) return nullptr;
    auto sound = ds_->CreateSoundBuffer(trackBufferDescription(cursors.lWrite));
    std::vector<std::byte> bytes(static_cast<std::size_t>(cursors.lWrite));
    capture->ReadBuffer(0, cursors.lWrite, bytes, 0);
    sound->WriteBuffer(0, cursors.lWrite, bytes, 0);
    return sound;
}

void FrmMixer::StartVUCapture() {
    if (vuBuffer_) return;
    if (recordBuffer_) recordBuffer_->Stop();
    recordBuffer_.reset();
    vuBuffer_ = startMeterCapture(*dsc_);
}

void FrmMixer::StopVUCapture() {
    if (vuBuffer_) vuBuffer_->Stop();
    vuBuffer_.reset();
}

void FrmMixer::cbEnableVU_Click() {
    if (cbEnableVU.Value() == 1) {
        if (!vuBuffer_) StartVUCapture();
    } else if (vuBuffer_) {
        vuBuffer_->Stop();  // the object stays: only the next recording brings the meters back
    }
    SaveSetting(gSettingsApp, QStringLiteral("Settings"), QStringLiteral("EnableVU"),
                QString::number(cbEnableVU.Value()));
}

void FrmMixer::cmdMixer_Click() {
    if (playing) {
        MsgBox(QStringLiteral("Window can not open while recording or playing!"));
        return;
    }
    enterMasterMixer();
}

void FrmMixer::Timer1_Timer() {
    bars_.DecayVU();
    if (vuBuffer_) {
        feedLevelColumns(bars_.UpdateVU(*vuBuffer_));
    } else if (recordBuffer_) {
        feedLevelColumns(bars_.UpdateVU(*recordBuffer_));
    }
    showLevels(bars_, leftVU, rightVU);
    showNotice(notice_, recordBuffer_.get(), lblNotice);
    if (playing) showState();
}

void FrmMixer::showState() {
    lblRecording.setVisible(static_cast<std::int32_t>(desktop().secondsSinceMidnight() * 4) % 2 == 1);
    if (trackMode_ == TrackMode::recordedTrack) {
        lblRecording.setCaption(QStringLiteral("P L A Y B A C K"));
        return;
    }
    lblRecording.setCaption(checkSource.Value() == 1 ? QStringLiteral("EXT. RECORDING")
                                                     : QStringLiteral("R E C O R D I N G"));
    lblRecording.setForeColor(red);
}

void FrmMixer::CloseAudio() {
    music_.close();
    if (recordBuffer_) recordBuffer_->Stop();
    recordBuffer_.reset();
    dsc_.reset();
    ds_.reset();
    music_.dx.reset();
}

}  // namespace lyrebrook
