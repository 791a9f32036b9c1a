#include "projects/FrmSongConfig.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/base/RuntimeError.h"
#include "platform/files/FileSystemObject.h"
#include "platform/files/Text.h"
#include "platform/forms/Desktop.h"
#include "projects/SongData.h"
#include "projects/SongFiles.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"

namespace lyrebrook {

FormInstance<FrmSongConfig> frmSongConfig;

FrmSongConfig::FrmSongConfig()
    : Form(QStringLiteral("Create Project")),
      Label1(content(), QStringLiteral("Create Project")),
      Frame1(content()),
      Label4(Frame1, QStringLiteral("Select an existing song or...")),
      lstSongs(Frame1),
      Frame2(content()),
      Label5(Frame2, QStringLiteral("...Insert the new song title and click the 'Add' button below to save.")),
      Label2(Frame2, QStringLiteral("Song title")),
      txtSongName(Frame2),
      Label3(Frame2, QStringLiteral("Category")),
      txtCategory(Frame2),
      CmdAdd(content(), QStringLiteral("Add")),
      cmdEdit(content(), QStringLiteral("Edit")),
      cmdSave(content(), QStringLiteral("Update")),
      cmdDelete(content(), QStringLiteral("Delete")),
      btnHelp(content(), QStringLiteral("Help")),
      cmdClose(content(), QStringLiteral("Close")) {
    cmdEdit.setVisible(false);
    layOut();
    connectHandlers();
}

void FrmSongConfig::layOut() {
    Label1.setLook(Look::title);
    CmdAdd.setLook(Look::primary);
    cmdDelete.setLook(Look::danger);
    Frame1.widget()->setLayout(layOutSongs());
    Frame2.widget()->setLayout(layOutNewSong());

    auto* frames = new QHBoxLayout;
    frames->setSpacing(16);
    frames->addWidget(Frame1, 1);
    frames->addWidget(Frame2, 1);

    auto* buttons = new QHBoxLayout;
    for (CommandButton* button : {&CmdAdd, &cmdEdit, &cmdSave, &cmdDelete}) buttons->addWidget(*button);
    buttons->addStretch(1);
    for (CommandButton* button : {&btnHelp, &cmdClose}) buttons->addWidget(*button);

    auto* column = new QVBoxLayout(content());
    column->setContentsMargins(24, 20, 24, 20);
    column->setSpacing(14);
    column->addWidget(Label1);
    column->addLayout(frames, 1);
    column->addLayout(buttons);
    window().resize(720, 440);
}

QVBoxLayout* FrmSongConfig::layOutSongs() {
    lstSongs.setAccessibleName(QStringLiteral("Songs"));
    auto* column = new QVBoxLayout;
    column->setSpacing(8);
    column->addWidget(Label4);
    column->addWidget(lstSongs, 1);
    return column;
}

QVBoxLayout* FrmSongConfig::layOutNewSong() {
    Label5.setWordWrap(true);
    txtSongName.setAccessibleName(Label2.Caption());
    txtCategory.setAccessibleName(Label3.Caption());
    auto* column = new QVBoxLayout;
    column->setSpacing(8);
    column->addWidget(Label5);
    column->addSpacing(10);
    column->addWidget(Label2);
    column->addWidget(txtSongName);
    column->addSpacing(6);
    column->addWidget(Label3);
    column->addWidget(txtCategory);
    column->addStretch(1);
    return column;
}

void FrmSongConfig::connectHandlers() {
    on(lstSongs.Click, &FrmSongConfig::lstSongs_Click);
    on(CmdAdd.Click, &FrmSongConfig::CmdAdd_Click);
    on(cmdEdit.Click, &FrmSongConfig::cmdEdit_Click);
    on(cmdSave.Click, &FrmSongConfig::cmdSave_Click);
    on(cmdDelete.Click, &FrmSongConfig::cmdDelete_Click);
    on(cmdClose.Click, &FrmSongConfig::cmdClose_Click);
    on(btnHelp.Click, [] { frmIntro->openHelp(1); });
    on(txtSongName.LostFocus, &FrmSongConfig::txtSongName_LostFocus);
}

void FrmSongConfig::Form_Load() {
    setCaption(QStringLiteral("Create Project"));
    cmdDelete.setEnabled(true);
    cmdEdit.setEnabled(true);
    CmdAdd.setEnabled(true);
    songSaved_ = true;
    refreshSongList();
    if (!gSongName.isEmpty()) txtSongName.setText(gSongName);
    getData({});
}

void FrmSongConfig::Form_Unload() {
    (gSongName.isEmpty() ? frmIntro->picStatusN : frmIntro->picStatusY)[0].ZOrder();
}

void FrmSongConfig::saveData() {
    if (trimBlanks(txtSongName.Text()).isEmpty()) return;
    writeSongData(songDataPath(txtSongName.Text()), {.projectName = txtSongName.Text(),
                                                     .projectCategory = txtCategory.Text(),
                                                     .voiceTrackOffset = gVoiceTrackOffset});
    gSongName = fileSafeTitle(txtSongName.Text());
}

void FrmSongConfig::getData(const QString& fileName) {
    if (trimBlanks(txtSongName.Text()).isEmpty() && fileName.isEmpty()) return;
    const QString path = fileName.isEmpty() ? songDataPath(txtSongName.Text()) : gProjectsFolder + fileName;
    const SongData song = readSongTexts(path);
    txtSongName.setText(song.projectName);
    txtCategory.setText(song.projectCategory);
    gVoiceTrackOffset = 0;
    gVoiceTrackOffset = readVoiceTrackOffset(path);
}

void FrmSongConfig::refreshSongList() {
    lstSongs.Clear();
    txtSongName.setText({});
    txtCategory.setText({});
    std::vector<File> files;
    try {
        files = FileSystemObject().GetFolder(gProjectsFolder).Files();
    } catch (const RuntimeError&) {
        MsgBox(QStringLiteral("Invalid directory for PROJECT files - ") + gProjectsFolder);
        return;
    }
    for (const File& file : files) {
        if (isSongDataFile(file.Name)) {
            getData(file.Name);
            lstSongs.AddItem(txtSongName.Text());
        }
        DoEvents();
    }
    // A file that doesn't exist blanks both boxes and the offset.
    if (gSongName.isEmpty()) getData(QStringLiteral("nothing"));
}

void FrmSongConfig::lstSongs_Click() {
    if (!songSaved_ && MsgBox(QStringLiteral("Save changes to Database?"), vbYesNo + vbQuestion,
                              QStringLiteral("Save changes")) == vbYes) {
        cmdSave_Click();
    }
    txtSongName.setText(lstSongs.Text());
    gSongName = fileSafeTitle(txtSongName.Text());
    getData({});
    DoEvents();
}

void FrmSongConfig::CmdAdd_Click() {
    if (!requireTexts(txtSongName.Text(), QStringLiteral("Please enter the new song's name."),
                      QStringLiteral("Please enter the song category."))) {
        return;
    }
    saveData();
    Sleep(1000);
    DoEvents();
    Form_Load();
    MsgBox(QStringLiteral("Song added successfully!"));
}

bool FrmSongConfig::requireTexts(const QString& title, const QString& missingTitle, const QString& missingCategory) {
    if (title.isEmpty()) {
        ask(missingTitle, txtSongName);
        return false;
    }
    if (txtCategory.Text().isEmpty()) {
        ask(missingCategory, txtCategory);
        return false;
    }
    return true;
}

void FrmSongConfig::ask(const QString& message, TextBox& box) {
    MsgBox(message, vbExclamation, QStringLiteral("Required"));
    box.SetFocus();
}

void FrmSongConfig::cmdEdit_Click() {
    cmdEdit.setEnabled(false);
    txtSongName.setEnabled(true);
    txtCategory.setEnabled(true);
    txtSongName.SetFocus();
}

void FrmSongConfig::cmdSave_Click() {
    if (!requireTexts(trimBlanks(txtSongName.Text()), QStringLiteral("Please enter the new song name."),
                      QStringLiteral("Please enter the song category."))) {
        return;
    }
    for (TextBox* box : {&txtSongName, &txtCategory}) {
        box->setText(box->Text().replace(QStringLiteral("'"), QStringLiteral("''")));
    }
    songSaved_ = true;
    MsgBox(QStringLiteral("Song updated!"));
    Form_Load();
}

void FrmSongConfig::cmdDelete_Click() {
    const QString title = txtSongName.Text();
    if (trimBlanks(title).isEmpty()) {
        MsgBox(QStringLiteral("Please select a song before you click delete"));
        return;
    }
    const QString question = QStringLiteral("Are you sure you want to delete song: \"") + title.toUpper() +
                             QStringLiteral("\" and all related audio files from the list?");
    if (MsgBox(question, vbYesNo, QStringLiteral("Delete")) != vbYes) {
        cmdDelete.SetFocus();
        return;
    }
    deleteSongFiles(title);
    songSaved_ = true;
    MsgBox(QStringLiteral("Song Deleted!"));
    refreshSongList();
    gSongName.clear();
    txtSongName.setText({});
    txtCategory.setText({});
    songSaved_ = true;
    cmdDelete.setEnabled(true);
}

void FrmSongConfig::cmdClose_Click() {
    if (!gSongName.isEmpty()) {
        Hide();
    } else {
        MsgBox(QStringLiteral("You must select a song before you can move to Step 2!"));
        Show();
    }
    if (gProjectEditMode != 3 && !songSaved_) {
        const auto answer = MsgBox(QStringLiteral("Save changes to Database?"), vbYesNoCancel + vbQuestion,
                                   QStringLiteral("Save changes"));
        if (answer == vbYes) cmdSave_Click();
        if (answer == vbCancel) {
            if (gProjectEditMode == 1) txtSongName.SetFocus();
            return;
        }
    }
    frmSongConfig.Unload();
}

void FrmSongConfig::txtSongName_LostFocus() {
    txtSongName.setText(trimBlanks(txtSongName.Text()));
}

}  // namespace lyrebrook
