#include "platform/forms/Desktop.h"
#include "recorder/FrmComposer.h"
#include "recorder/recorderMemory.h"
#include "recorder/soundDevices.h"
#include "shell/modConfig.h"

#include <QScopedValueRollback>

namespace lyrebrook {
namespace {

int armed() {
    return gRecorderMemory.recordTrack;
}

QString deleteQuestion(int track) {
    if (track == mixTrack) {
        return QStringLiteral("Are you sure you want to permanently delete the 'Final Mix' track %1?").arg(track - 1);
    }
    return QStringLiteral("Are you sure you want to permanently delete Voice Track %1?").arg(track - 1);
}

}  // namespace

void FrmComposer::cmdRecEnable_Click(int track) {
    if (track == musicTrack) {
        MsgBox(QStringLiteral("Sorry, you cannot record on Track 1."), vbCritical);
        return;
    }
    if (recording()) {
        MsgBox(QStringLiteral("Sorry, you cannot change recording track while recording."), vbCritical);
        return;
    }
    for (int other = 1; other <= trackCount; ++other) cmdRecEnable[other].setBackColor(buttonFace);
    cmdRecEnable[track].setBackColor(red);
    gRecorderMemory.recordTrack = track;
}

void FrmComposer::cmdRecord_Click() {
    if (!tracks_.loaded()) return;
    if (checkChannelMix.Value() == 1) {
        checkChannelMix.setValue(0);
        checkChannelMix_Click();
    }
    if (armed() == mixTrack) {
        VScrollA.setValue(VScrollA.Max());
        VScrollA_Change();
        if (tracks_.playCursor(tracks_.longestTrack()) > 0) {
            MsgBox(
                QStringLiteral("You cannot start from the middle of the song when recording the final mix track."
                               "\r\n\r\n* Move cursor to beginning of song, then click 'Record'."
                               "\r\n* Allow the song to finish playing before you click stop."));
            return;
        }
    }
    if (recording() && playing()) return punchOut();
    if (!refusesTake()) startTake();
}

void FrmComposer::punchOut() {
    SaveRecording();
    if (!unloaded_ && playing()) playback_.rejoin(armed(), mix());
}

/// A merge would write what the buffer holds over what only the file has.
bool FrmComposer::refusesTake() {
    if (tracks_.bufferHoldsFile(armed())) return false;
    MsgBox(QStringLiteral("Sorry, you cannot record on '%1'. Its file could not be read whole, and the rest would be "
                          "lost. Delete the track, or move the file away, to record anew.")
               .arg(trackName(armed())),
           vbCritical);
    return true;
}

void FrmComposer::startTake() {
    ++takes_.takeCount;
    shpTake.load(takes_.takeCount);
    lnCursor.ZOrder();
    cbRecord.setValue(1);
    if (!playing()) {
        take_.placeAtCursor(tracks_);
        cmdPlay.setValue(true);
        return;
    }
    CreateRecordBuffer();
    take_.punchIn(tracks_, armed());
}

/// As long as the song, however late the take starts. One device serves one capture, so the meters lose theirs.
void FrmComposer::CreateRecordBuffer() {
    StopVUCapture();
    take_.CreateRecordBuffer(*dsc_, static_cast<float>(tracks_.songBytes()) / bytesPerSecond);
}

void FrmComposer::extendRecordedWave() {
    const double scale = songBar().twipsPerByte();
    const Shape& bar = shpWaveform[armed()];
    Shape& shape = shpTake[takes_.takeCount];
    shape.Move(scale * take_.recordStart() + bar.Left(), bar.Top(), scale * take_.capturedBytes(), bar.Height());
    shape.setVisible(true);
    takes_.note({.start = take_.recordStart(), .length = take_.capturedBytes()});
}

/// While a box is open the song goes on, and its end or its repeat asks for the same take again.
void FrmComposer::SaveRecording() {
    if (saving_) return;
    const QScopedValueRollback saving(saving_, true);
    lblRecording.setVisible(true);
    lblRecording.setForeColor(black);
    lblRecording.setCaption(QStringLiteral("S A V I N G"));
    DoEvents();
    if (unloaded_ || !recording()) return;  // closed, or saved by what was pending
    setMousePointer(MousePointer::hourglass);
    if (saveTake() == Saved::yes) resizeAll();
    cbRecord.setValue(0);
    setMousePointer(MousePointer::standard);
}

FrmComposer::Saved FrmComposer::saveTake() {
    auto merged = take_.GetSoundBufferFromCapture(*ds_, tracks_, armed());
    if (!merged) {
        MsgBox(QStringLiteral("Recording failed. Possibly, out of buffer space."), vbCritical);
        return Saved::no;
    }
    const bool saved = saveSoundOrAsk(*merged, trackFilePath(armed()));
    if (saved) takeOver(std::move(merged));
    setPositionToCursor();
    return saved ? Saved::yes : Saved::no;
}

/// The new buffer is dressed like the old one before it can sound.
void FrmComposer::takeOver(std::unique_ptr<DirectSoundSecondaryBuffer8> merged) {
    tracks_.replaceBuffer(armed(), std::move(merged));
    playback_.setTrackFx(armed());
    TrackMix all = mix();
    all.takenTrack = TrackMix::none;
    playback_.applyTrackMix(all);
}

void FrmComposer::cmdDeleteTrack_Click(int track) {
    if (playing()) {
        MsgBox(QStringLiteral("Track can not be deleted while playing."));
        return;
    }
    const QString path = trackFilePath(track);
    if (MsgBox(deleteQuestion(track), vbYesNoCancel + vbQuestion, QStringLiteral("Save changes")) != vbYes) return;
    if (!deleteFile(path)) {
        MsgBox(QStringLiteral("Track does not exist!"));
        return;
    }
    frmComposer.Unload();
    frmComposer.Show();
}

}  // namespace lyrebrook
