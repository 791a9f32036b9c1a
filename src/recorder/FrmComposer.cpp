#include "recorder/FrmComposer.h"

#include "backtrack/FrmMixer.h"
#include "lyrics/FrmLyrics.h"
#include "mixer/FrmVolumeMixer.h"
#include "mixer/masterMixer.h"
#include "platform/base/Numbers.h"
#include "platform/base/RuntimeError.h"
#include "platform/files/App.h"
#include "platform/files/Settings.h"
#include "platform/forms/Desktop.h"
#include "projects/FrmSongConfig.h"
#include "projects/SongFiles.h"
#include "recorder/recorderMemory.h"
#include "recorder/soundBuffers.h"
#include "recorder/soundDevices.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"

#include <algorithm>
#include <array>

namespace lyrebrook {
namespace {

QString setting(const QString& key, const QString& defaultValue) {
    return GetSetting(gSettingsApp, QStringLiteral("Settings"), key, defaultValue);
}

void saveSetting(const QString& key, std::int32_t value) {
    SaveSetting(gSettingsApp, QStringLiteral("Settings"), key, QString::number(value));
}

/// Runs a step of loading; an error in it is passed over.
template <class Step>
void skippingErrors(Step step) {
    try {
        step();
    } catch (const RuntimeError&) {
        return;
    }
}

void remember(std::array<std::int16_t, 21>& values, int track, const Slider& slider) {
    values.at(static_cast<std::size_t>(track)) = toInt16(slider.Value());
}

}  // namespace

FormInstance<FrmComposer> frmComposer;

void FrmComposer::connectHandlers() {
    for (auto* entry : {&cmdPlay.Click, &mnuPlay.Click}) on(*entry, &FrmComposer::cmdPlay_Click);
    for (auto* entry : {&cmdStop.Click, &mnuStop.Click}) on(*entry, &FrmComposer::cmdStop_Click);
    for (auto* entry : {&cmdHome.Click, &mnuHome.Click}) on(*entry, &FrmComposer::cmdHome_Click);
    mnuPlay.setShortcut(Qt::Key_Space);
    mnuHome.setShortcut(Qt::Key_Home);
    on(btnIn.Click, &FrmComposer::btnIn_Click);
    on(btnOUT.Click, &FrmComposer::btnOUT_Click);
    on(btnRepeat.Click, &FrmComposer::btnRepeat_Click);
    on(chkLyrics.Click, &FrmComposer::chkLyrics_Click);
    on(cmdLyricAdd.Click, &FrmComposer::cmdLyricAdd_Click);
    on(cmdLyricUpdate.Click, &FrmComposer::cmdLyricUpdate_Click);
    on(cmdViewLyrics.Click, &FrmComposer::cmdViewLyrics_Click);
    on(cmdRhyme.Click, &FrmComposer::cmdRhyme_Click);
    on(cbEnableVU.Click, &FrmComposer::cbEnableVU_Click);
    on(Timer1.Tick, &FrmComposer::Timer1_Timer);
    on(cmdRecord.Click, &FrmComposer::cmdRecord_Click);
    on(cmdRecEnable, &CommandButton::Click, &FrmComposer::cmdRecEnable_Click);
    on(cmdDeleteTrack, &CommandButton::Click, &FrmComposer::cmdDeleteTrack_Click);
    on(imgSliderB.MouseDown, &FrmComposer::imgSliderB_MouseDown);
    on(imgSliderB.MouseMove, &FrmComposer::imgSliderB_MouseMove);
    for (auto* event : {&sldHScale.Change, &sldHScale.Scroll}) on(*event, &FrmComposer::sldHScale_Change);
    on(mnuFitView.Click, &FrmComposer::mnuFitView_Click);
    for (auto* event : {&HScrollB.Change, &HScrollB.Scroll}) on(*event, &FrmComposer::HScrollB_Change);
    for (auto* event : {&VScrollA.Change, &VScrollA.Scroll}) on(*event, &FrmComposer::VScrollA_Change);
    for (auto* entry : {&cmdMixer.Click, &mnuVolume2.Click}) on(*entry, &FrmComposer::cmdMixer_Click);
    on(cmdHelp.Click, [] { frmIntro->openHelp(0); });
    on(cmdHelpVolume.Click, [] { frmIntro->openHelp(10); });
    on(btnEnd.Click, [] { frmComposer.Unload(); });
    on(Command1.Click, &FrmComposer::Command1_Click);
}

void FrmComposer::connectMixer() {
    for (ControlArray<Slider>* array : {&sLevel, &sPan}) on(*array, &Slider::Scroll, [this](int) { Timer1_Timer(); });
    on(sLevel, &Slider::Change, [this](int track) { remember(gTrackLevel, track, sLevel[track]); });
    on(sReverb, &Slider::Change, [this](int track) { remember(gTrackReverb, track, sReverb[track]); });
    for (auto event : {&Slider::Scroll, &Slider::Click}) on(sReverb, event, &FrmComposer::sReverb_Click);
    on(sMaster.Scroll, &FrmComposer::sMaster_Scroll);
    on(sldOffset.MouseUp, &FrmComposer::sldOffset_MouseUp);
    on(checkChannelMix.Click, &FrmComposer::checkChannelMix_Click);
}

void FrmComposer::Form_Load() {
    if (gSongName.isEmpty()) gSongName = QStringLiteral("Demo Song");
    gRecorderMemory.marks.punchInSet = false;
    gRecorderMemory.marks.punchOutSet = false;
    sldOffset.setValue(getVoiceTrackOffset());
    resizeAll();
    constexpr int firstVoice = 2;
    cmdRecEnable_Click(std::max(gRecorderMemory.recordTrack, firstVoice));
    skippingErrors([this] {
        sMaster.setValue(textToInt32(setting(QStringLiteral("globalVolume"), QStringLiteral("0")).toStdString()));
    });
    sMaster_Scroll();
    Timer1_Timer();
}

void FrmComposer::Form_Activate() {
    frmMixer.Unload();  // it may hold the capture device
    txtLoading.setVisible(true);
    setMousePointer(MousePointer::hourglass);
    DoEvents();
    if (unloaded_) return;
    if (!dx_) dx_ = std::make_unique<DirectX8>();
    ds_ = openPlayback(*dx_);
    ds_->SetCooperativeLevel(static_cast<std::int64_t>(window().winId()), DSSCL_PRIORITY);
    dsc_ = openRecording(*dx_);
    const auto unreadable = tracks_.loadTracks(*ds_);
    for (int track = 1; track <= trackCount; ++track) playback_.setTrackFx(track);
    resizeAll();
    txtLoading.setVisible(false);
    setMousePointer(MousePointer::standard);
    lnCursor.setVisible(true);
    double songStart = 0;
    setPosition(songStart);
    updateCursor();
    Timer1.setEnabled(true);
    leftVU.setVisible(true);
    rightVU.setVisible(true);
    if (!playing() && cbEnableVU.Value() == 1) StartVUCapture();
    gLyricFile = App::Path() + QStringLiteral("/songs/") + gSongName + QStringLiteral(".txt");
    frmLyrics->loadLyricsFromTextFile();
    if (unloaded_) return;
    tellUnreadable(unreadable);
}

void FrmComposer::tellUnreadable(const std::vector<Tracks::Unreadable>& files) {
    for (const Tracks::Unreadable& file : files) {
        const QString text = QStringLiteral(
                                 "The file of track '%1' could not be read. The track stays silent and its "
                                 "file as it is. Error: %2 | Desc: %3")
                                 .arg(trackName(file.track))
                                 .arg(file.error.number())
                                 .arg(QString::fromStdString(file.error.description()));
        if (toldUnreadable_.contains(text)) continue;
        toldUnreadable_.append(text);
        MsgBox(text, vbExclamation);
    }
}

void FrmComposer::Form_Unload() {
    unloaded_ = true;
    Timer1.setEnabled(false);
    frmVolumeMixer.Unload();
    StopVUCapture();
    CloseAudio();
    frmLyrics->resetLyricsArray();
    frmLyrics.Unload();  // a save there would now write an empty file
    frmIntro->picStatusY[3].ZOrder();
}

void FrmComposer::CloseAudio() {
    tracks_.CloseAudio();
    take_.release();
    ds_.reset();
    dsc_.reset();
    dx_.reset();
}

bool FrmComposer::deleteFile(const QString& path) {
    return lyrebrook::deleteFile(path);
}

std::int32_t FrmComposer::getVoiceTrackOffset() {
    frmSongConfig->getData({});
    return gVoiceTrackOffset;
}

void FrmComposer::saveVoiceTrackOffset() {
    frmSongConfig->saveData();
}

TrackMix FrmComposer::mix() const {
    constexpr std::int32_t offsetUnit = 1000;  // bytes
    TrackMix mix;
    for (int track = 1; track <= trackCount; ++track) {
        mix.strips[static_cast<std::size_t>(track)] = {
            .level = sLevel[track].Value(), .pan = sPan[track].Value(), .reverb = sReverb[track].Value()};
    }
    mix.masterScale = masterScale_;
    mix.offset = sldOffset.Value() * offsetUnit;
    mix.mixHeard = checkChannelMix.Value() == 1;
    if (recording()) mix.takenTrack = gRecorderMemory.recordTrack;
    return mix;
}

void FrmComposer::setPosition(double& fraction) {
    const bool quiet = lblRecording.Visible();
    playback_.setPosition(fraction, mix(), playing() ? Playback::Song::runs : Playback::Song::stands,
                          [quiet](const QString& message) {
                              if (!quiet) MsgBox(message);
                          });
}

void FrmComposer::setPositionToCursor() {
    double fraction = static_cast<double>(position());
    setPosition(fraction);
}

void FrmComposer::sMaster_Scroll() {
    masterScale_ = static_cast<float>(100 - sMaster.Value()) / 100;
    saveSetting(QStringLiteral("globalVolume"), sMaster.Value());
}

void FrmComposer::sReverb_Click(int track) {
    if (tracks_.loaded()) playback_.setTrackReverb(track, -sReverb[track].Value());
}

void FrmComposer::sldOffset_MouseUp() {
    if (!tracks_.loaded()) return;
    cmdStop_Click();
    if (!tracks_.loaded()) return;  // closed while the take was saved
    frmSongConfig.Load();           // which reads the offset that the file still has
    gVoiceTrackOffset = sldOffset.Value();
    saveVoiceTrackOffset();
    setPositionToCursor();
    updateCursor();
    cmdPlay_Click();
}

void FrmComposer::checkChannelMix_Click() {
    constexpr std::int32_t turnedDown = 3000;
    const bool heard = checkChannelMix.Value() == 1;
    if (heard) savedMusicLevel_ = sLevel[musicTrack].Value();
    sLevel[musicTrack].setValue(heard ? turnedDown : savedMusicLevel_);
    sLevel[mixTrack].setValue(heard ? 0 : turnedDown);
    VScrollA.setValue(heard ? VScrollA.Max() : VScrollA.Min());
    VScrollA_Change();
}

void FrmComposer::StartVUCapture() {
    if (vuBuffer_ || !dsc_) return;
    vuBuffer_ = startMeterCapture(*dsc_);
}

void FrmComposer::StopVUCapture() {
    if (vuBuffer_) vuBuffer_->Stop();
    vuBuffer_.reset();
}

void FrmComposer::cbEnableVU_Click() {
    if (cbEnableVU.Value() == 1)
        StartVUCapture();
    else
        StopVUCapture();
    saveSetting(QStringLiteral("EnableVU"), cbEnableVU.Value());
}

void FrmComposer::cmdMixer_Click() {
    if (playing()) {
        MsgBox(QStringLiteral("Window can not open while recording or playing! Click stop and try again."));
        return;
    }
    enterMasterMixer();
}

void FrmComposer::Command1_Click() {
    QString rows;
    for (const LyricRow& row : gLyrics) {
        rows += row[0].toString() + QStringLiteral(" | ") + row[1].toString() + QStringLiteral(" | ") +
                row[2].toString() + QStringLiteral("\r\n\r\n");
    }
    MsgBox(rows);
}

}  // namespace lyrebrook
