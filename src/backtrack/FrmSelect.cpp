#include "backtrack/FrmSelect.h"

#include "backtrack/BacktrackKind.h"
#include "mixer/FrmVolumeMixer.h"
#include "mixer/masterMixer.h"
#include "platform/base/Numbers.h"
#include "platform/base/RuntimeError.h"
#include "platform/files/App.h"
#include "platform/files/TextStream.h"
#include "platform/forms/Boundary.h"
#include "platform/forms/Desktop.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"

namespace lyrebrook {

FormInstance<FrmSelect> frmSelect;

namespace {

constexpr int enterKey = 13;

/// Calls `step` with 0 to `last`. The counter has 16 bits: a longer list is an overflow.
template <class Step>
void countTo(int last, Step step) {
    const std::int16_t end = toInt16(last);
    for (std::int16_t i = 0; i <= end; i = toInt16(i + 1)) step(i);
}

}  // namespace

void FrmSelect::connectHandlers() {
    on(Drive1.Change, &FrmSelect::Drive1_Change);
    on(Dir1.Change, &FrmSelect::Dir1_Change);
    on(TxtPath.KeyPress, &FrmSelect::TxtPath_KeyPress);
    on(File1.DblClick, &FrmSelect::File1_DblClick);
    on(CmdAdd.Click, &FrmSelect::CmdAdd_Click);
    on(List1.Click, &FrmSelect::List1_Click);
    on(CmdDelete.Click, &FrmSelect::CmdDelete_Click);
    on(CmdClear.Click, &FrmSelect::CmdClear_Click);
    for (auto* open : {&CmdOpen.Click, &mnuOpen.Click}) on(*open, &FrmSelect::CmdOpen_Click);
    for (auto* save : {&CmdSave.Click, &mnuSave.Click}) on(*save, &FrmSelect::CmdSave_Click);
    on(cmdListen.Click, &FrmSelect::cmdListen_Click);
    on(cmdStop.Click, &FrmSelect::cmdStop_Click);
    on(cmdMixer.Click, enterMasterMixer);
    on(cmdHelp.Click, [] { frmIntro->openHelp(2); });
    on(btnEnd.Click, [] { frmSelect.Unload(); });
    on(segmentMessage_, &FrmSelect::DirectXEvent8_DXCallback);
}

void FrmSelect::Form_Load() {
    if (gTracksFolder.isEmpty()) gTracksFolder = App::Path() + QStringLiteral("/tracks/Version1/");
    if (gSongName.isEmpty()) gSongName = QStringLiteral("tempTest");
    Label4.setCaption(gSongName);
    Dir1.setPath(gTracksFolder);
    enableAddForFiles();
    cmdListen.setEnabled(false);
    cmdStop.setEnabled(false);
    InitAudio();
}

void FrmSelect::Form_Unload() {
    frmVolumeMixer.Unload();
    CloseAudio();
    (gBacktrackFile.isEmpty() ? frmIntro->picStatusN : frmIntro->picStatusY)[1].ZOrder();
}

void FrmSelect::enableAddForFiles() {
    if (File1.ListCount() >= 1) CmdAdd.setEnabled(true);
}

void FrmSelect::Drive1_Change() {
    try {
        Dir1.setPath(Drive1.Drive());
    } catch (const RuntimeError& error) {
        MsgBox(QString::fromStdString(error.description()));
    }
}

void FrmSelect::Dir1_Change() {
    File1.setPath(Dir1.Path());
    TxtPath.setText(Dir1.Path());
    enableAddForFiles();
}

void FrmSelect::TxtPath_KeyPress(int keyAscii) {
    if (keyAscii == enterKey) {
        try {
            Dir1.setPath(TxtPath.Text());
            File1.setPath(Dir1.Path());
        } catch (const RuntimeError&) {
            TxtPath.setText({});
            return;
        }
    }
    enableAddForFiles();
}

QString FrmSelect::pathOfCurrentFile() const {
    return Dir1.Path() + u'/' + File1.FileName();  // in the root folder the entry holds two separators
}

void FrmSelect::CmdAdd_Click() {
    countTo(File1.ListCount() - 1, [this](int i) {
        File1.setListIndex(i);
        List1.AddItem(pathOfCurrentFile());
    });
}

void FrmSelect::File1_DblClick() {
    List1.AddItem(pathOfCurrentFile());
    CmdClear.setEnabled(true);
    CmdSave.setEnabled(true);
}

void FrmSelect::List1_Click() {
    if (List1.ListIndex() < 0) {
        CmdDelete.setEnabled(false);
        return;
    }
    CmdDelete.setEnabled(true);
    gBacktrackFile = List1.List(List1.ListIndex());
    cmdListen.setEnabled(true);
    currentFile_ = gBacktrackFile;
    LoadBacktrack();
}

void FrmSelect::CmdDelete_Click() {
    int index = List1.ListIndex();
    if (index < 0) {
        CmdDelete.setEnabled(false);
        return;
    }
    List1.RemoveItem(index);
    if (index == List1.ListCount()) --index;
    if (index >= 0) {
        List1.setListIndex(index);
    } else {
        CmdDelete.setEnabled(false);
    }
}

void FrmSelect::CmdClear_Click() {
    countTo(List1.ListCount() - 1, [this](int) { List1.RemoveItem(0); });
    CmdClear.setEnabled(false);
    CmdDelete.setEnabled(false);
    CmdSave.setEnabled(false);
}

void FrmSelect::askForPlaylists() {
    CommonDialog1.setFilter(QStringLiteral("MIDI Player List (*.MPL)|*.MPL"));
    CommonDialog1.setInitDir(App::Path() + QStringLiteral("/playlists/"));
}

void FrmSelect::CmdOpen_Click() {
    askForPlaylists();
    CommonDialog1.ShowOpen();
    if (CommonDialog1.FileName().isEmpty()) return;
    TextStream playlist = TextStream::openForReading(CommonDialog1.FileName());
    while (!playlist.AtEndOfStream()) {
        gSongName = playlist.ReadLine();  // the song's name is the line buffer: a playlist deselects the song
        List1.AddItem(gSongName);
    }
    List1.RemoveItem(List1.ListCount() - 1);  // the empty line that every playlist ends with
    CmdClear.setEnabled(true);
    CmdSave.setEnabled(true);
    mnuSave.setEnabled(true);
}

void FrmSelect::CmdSave_Click() {
    askForPlaylists();
    CommonDialog1.ShowSave();
    if (CommonDialog1.FileName().isEmpty()) return;
    TextStream playlist = TextStream::openForWriting(CommonDialog1.FileName());
    countTo(List1.ListCount(), [&](int i) { playlist.WriteLine(List1.List(i)); });  // the last one past the end
    playlist.Close();
}

void FrmSelect::InitAudio() {
    try {
        music_.open(static_cast<std::int64_t>(window().winId()), *this);
    } catch (const RuntimeError&) {
        MsgBox(QStringLiteral("Could not initialize DirectMusic.\r\nThis program will end."), vbInformation,
               QStringLiteral("Exiting..."));
        CloseAudio();
        frmSelect.Unload();
        endProgram();
    }
}

void FrmSelect::LoadBacktrack() {
    try {
        if (playing_) cmdStop_Click();
        if (music_.seg) music_.perf->StopEx(*music_.seg);
        music_.seg.reset();
        music_.load(currentFile_);
        if (isMidiForListening(currentFile_)) music_.seg->SetStandardMidiFile();
    } catch (const RuntimeError&) {
        music_.seg.reset();  // recording the backtrack will say that it can't be loaded
    }
}

void FrmSelect::cmdListen_Click() {
    if (music_.seg) {
        music_.perf->PlaySegmentEx(*music_.seg);
        playing_ = true;
    }
    cmdListen.setEnabled(false);
    cmdStop.setEnabled(true);
}

void FrmSelect::cmdStop_Click() {
    playing_ = false;
    if (music_.seg) music_.perf->StopEx(*music_.seg);
    cmdListen.setEnabled(true);
    cmdStop.setEnabled(false);
}

void FrmSelect::DXCallback(std::int32_t) {
    fromQt([this] { segmentMessage_.fire(); });
}

void FrmSelect::DirectXEvent8_DXCallback() {
    DMUS_NOTIFICATION_PMSG message;
    if (!music_.perf->GetNotificationPMSG(message)) {
        MsgBox(QStringLiteral("Error processing this Notification"), vbInformation, QStringLiteral("Cannot Process."));
        return;
    }
    if (message.lNotificationOption != DMUS_NOTIFICATION_SEGEND) return;
    cmdStop_Click();
    cmdListen.setEnabled(true);
    cmdStop.setEnabled(false);
}

void FrmSelect::CloseAudio() {
    music_.close();
    music_.dx.reset();
}

}  // namespace lyrebrook
