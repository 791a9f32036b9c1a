#pragma once

#include <QString>
#include <cstdint>

#include "backtrack/BacktrackMusic.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/CommonDialog.h"
#include "platform/forms/DirListBox.h"
#include "platform/forms/DriveListBox.h"
#include "platform/forms/FileListBox.h"
#include "platform/forms/FormInstance.h"
#include "platform/forms/Frame.h"
#include "platform/forms/Label.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/MenuEntry.h"
#include "platform/forms/TextBox.h"

class QVBoxLayout;

namespace lyrebrook {

/// Step 2: finds backtracks on the disk, collects them in a playlist, and lets the user hear the one that is picked.
/// The playlist is nothing but the texts of `List1`; picking an entry is the one way in which a backtrack is chosen.
class FrmSelect final : public Form, private DirectXEvent8 {
  public:
    FrmSelect();

    void Form_Load() override;
    void Form_Unload() override;

    Frame Frame1;
    Label Label5;
    DriveListBox Drive1;
    TextBox TxtPath;
    DirListBox Dir1;
    FileListBox File1;
    CommandButton CmdAdd;

    Frame Frame2;
    Label Label4;
    Label Label8;
    Label Label2;
    Label lblfeedback;
    ListBox List1;
    CommandButton CmdOpen, CmdSave, CmdDelete, CmdClear;
    CommandButton cmdListen, cmdStop;
    CommandButton cmdMixer, cmdHelp, btnEnd;
    CommonDialog CommonDialog1;
    MenuEntry mnuPL, mnuOpen, mnuSave;

  private:
    void layOut();
    QVBoxLayout* layOutBrowser();
    QVBoxLayout* layOutPlaylist();
    void connectHandlers();

    void Drive1_Change();
    void Dir1_Change();
    void TxtPath_KeyPress(int keyAscii);
    void File1_DblClick();
    void CmdAdd_Click();
    void List1_Click();
    void CmdDelete_Click();
    void CmdClear_Click();
    void CmdOpen_Click();
    void CmdSave_Click();
    void cmdListen_Click();
    void cmdStop_Click();

    void enableAddForFiles();
    QString pathOfCurrentFile() const;
    void askForPlaylists();
    void InitAudio();
    void LoadBacktrack();
    void CloseAudio();
    void DXCallback(std::int32_t eventId) override;
    void DirectXEvent8_DXCallback();

    BacktrackMusic music_;
    bool playing_ = false;
    QString currentFile_;
    Event<> segmentMessage_;
};

extern FormInstance<FrmSelect> frmSelect;

}  // namespace lyrebrook
