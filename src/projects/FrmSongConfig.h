#pragma once

#include <QString>

#include "platform/forms/CommandButton.h"
#include "platform/forms/FormInstance.h"
#include "platform/forms/Frame.h"
#include "platform/forms/Label.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/TextBox.h"

class QVBoxLayout;

namespace lyrebrook {

/// Step 1: picks a song or creates one, and deletes a song with all its files. Its text boxes are also the way in which
/// other screens read and write the song data file, so it is often loaded without being seen.
class FrmSongConfig final : public Form {
  public:
    FrmSongConfig();

    /// Also run by other handlers, to fill the whole screen anew.
    void Form_Load() override;
    void Form_Unload() override;

    /// Writes the song data file from the text boxes and `gVoiceTrackOffset`, and makes its song the current one.
    void saveData();

    /// Reads a song data file into the text boxes and `gVoiceTrackOffset`: a bare name in the projects folder, or with
    /// an empty name the file of the title in the box.
    void getData(const QString& fileName);

    void refreshSongList();

    Label Label1;
    Frame Frame1;
    Label Label4;
    ListBox lstSongs;
    Frame Frame2;
    Label Label5;
    Label Label2;
    TextBox txtSongName;
    Label Label3;
    TextBox txtCategory;
    CommandButton CmdAdd, cmdEdit, cmdSave, cmdDelete, btnHelp, cmdClose;

  private:
    void layOut();
    QVBoxLayout* layOutSongs();
    QVBoxLayout* layOutNewSong();
    void connectHandlers();
    bool requireTexts(const QString& title, const QString& missingTitle, const QString& missingCategory);
    void ask(const QString& message, TextBox& box);

    void lstSongs_Click();
    void CmdAdd_Click();
    void cmdEdit_Click();
    void cmdSave_Click();
    void cmdDelete_Click();
    void cmdClose_Click();
    void txtSongName_LostFocus();

    bool songSaved_ = false;
};

extern FormInstance<FrmSongConfig> frmSongConfig;

}  // namespace lyrebrook
