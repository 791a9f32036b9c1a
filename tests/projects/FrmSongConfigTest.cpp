#include "projects/FrmSongConfig.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

#include "projects/SongData.h"
#include "shell/modConfig.h"
#include "support/Studio.h"

namespace lyrebrook {
namespace {

class CreateProject : public Studio {
  protected:
    void addSong(const QString& title, const QString& category) {
        frmSongConfig->txtSongName.setText(title);
        frmSongConfig->txtCategory.setText(category);
        EXPECT_EQ(boxOf(frmSongConfig->CmdAdd), Box{"Song added successfully!"});
    }

    /// The last box that a click brings, where `answers` are given to all.
    Box boxOf(CommandButton& button, std::initializer_list<MsgBoxResult> answers = {vbOK}) {
        for (const MsgBoxResult answer : answers) desk().willAnswer(answer);
        button.setValue(true);
        return desk().takeBoxes().back();
    }

    QStringList namesIn(const char* folder) const { return QDir(path(folder)).entryList(QDir::Files); }

    static QStringList songs() {
        QStringList titles;
        for (int i = 0; i < frmSongConfig->lstSongs.ListCount(); ++i) titles << frmSongConfig->lstSongs.List(i);
        return titles;
    }
    static QString boxes() { return frmSongConfig->txtSongName.Text() + '|' + frmSongConfig->txtCategory.Text(); }
};

TEST_F(CreateProject, AddsASongThatInheritsTheVoiceOffsetAndShowsTheOneThatIsSelected) {
    frmSongConfig.Show();
    addSong("Rock'n'Roll!", "Rock");
    gVoiceTrackOffset = 70;
    addSong("ballad", "Slow");
    addSong("Rock'n'Roll!", "Punk");
    EXPECT_EQ(songs(), (QStringList{"ballad", "Rock'n'Roll!"}));
    EXPECT_EQ(gSongName + '|' + boxes(), "RocknRoll|Rock'n'Roll!|Punk");
    EXPECT_EQ(namesIn("projects"), (QStringList{"ballad_songData.xon", "RocknRoll_songData.xon"}));
    gVoiceTrackOffset = 0;
    frmSongConfig->lstSongs.setListIndex(0);
    EXPECT_EQ(gSongName + '|' + boxes(), "ballad|ballad|Slow");
    EXPECT_EQ(gVoiceTrackOffset, 70);
}

TEST_F(CreateProject, AsksForTitleAndCategoryInTheirOwnWords) {
    frmSongConfig.Show();
    const auto required = [](const char* text) { return Box{text, vbExclamation, "Required"}; };
    EXPECT_EQ(boxOf(frmSongConfig->CmdAdd), required("Please enter the new song's name."));
    EXPECT_EQ(boxOf(frmSongConfig->cmdSave), required("Please enter the new song name."));
    EXPECT_EQ(boxOf(frmSongConfig->cmdDelete), Box{"Please select a song before you click delete"});
    frmSongConfig->txtSongName.setText("Song");
    EXPECT_EQ(boxOf(frmSongConfig->CmdAdd), required("Please enter the song category."));
    EXPECT_EQ(boxOf(frmSongConfig->cmdSave), required("Please enter the song category."));
    EXPECT_TRUE(namesIn("projects").isEmpty());
}

TEST_F(CreateProject, UpdateThrowsEditsAwayAndWritesNoFile) {
    frmSongConfig.Show();
    addSong("Song", "Folk");
    frmSongConfig->txtCategory.setText("Rock 'n' Roll");
    desk().willAnswer(vbOK, [] { EXPECT_EQ(boxes(), "Song|Rock ''n'' Roll"); });
    EXPECT_EQ(boxOf(frmSongConfig->cmdSave, {}), Box{"Song updated!"});
    EXPECT_EQ(boxes(), "Song|Folk");
}

TEST_F(CreateProject, StaysEmptyWithNoSongAlthoughTheFolderHoldsSome) {
    writeSongData(songDataPath("Old"), {.projectName = "Old", .projectCategory = "x", .voiceTrackOffset = 9});
    QFile::copy(songDataPath("Old"), path("projects/Old_songData_copy.xon"));
    QFile::copy(songDataPath("Old"), path("projects/A workset.xon"));
    frmSongConfig.Show();
    EXPECT_EQ(songs(), (QStringList{"Old", "Old"})) << "a name counts wherever it says so";
    EXPECT_EQ(boxes(), "|");
    EXPECT_EQ(gVoiceTrackOffset, 0);
}

TEST_F(CreateProject, DeletesTheTypedSongsDataAndTheSelectedSongsSound) {
    frmSongConfig.Show();
    addSong("Typed", "x");
    addSong("Selected", "x");
    for (const char* name : {"Selected_1.wav", "Selected_4.wav", "Selected.txt", "Typed_1.wav", "Selected_5.wav"}) {
        EXPECT_TRUE(QFile(path(QString("songs/") + name)).open(QIODevice::WriteOnly));
    }
    frmSongConfig->txtSongName.setText("Typed");
    EXPECT_EQ(boxOf(frmSongConfig->cmdDelete, {vbNo}),
              (Box{"Are you sure you want to delete song: \"TYPED\" and all related audio files from the list?",
                   vbYesNo, "Delete"}));
    EXPECT_EQ(namesIn("projects").size() + namesIn("songs").size(), 7);
    EXPECT_EQ(boxOf(frmSongConfig->cmdDelete, {vbYes, vbOK}), Box{"Song Deleted!"});
    EXPECT_EQ(namesIn("projects"), QStringList{"Selected_songData.xon"});
    EXPECT_EQ(namesIn("songs"), (QStringList{"Selected_5.wav", "Typed_1.wav"}));
    EXPECT_EQ(songs(), QStringList{"Selected"});
    EXPECT_EQ(gSongName + '|' + boxes(), "||");
}

TEST_F(CreateProject, ClosesAfterItsWarningAndSaysWhichFolderIsMissing) {
    frmSongConfig.Show();
    EXPECT_EQ(boxOf(frmSongConfig->cmdClose), Box{"You must select a song before you can move to Step 2!"});
    EXPECT_FALSE(frmSongConfig.isLoaded());
    QDir(path("projects")).removeRecursively();
    desk().willAnswer(vbOK);
    frmSongConfig.Show();
    EXPECT_EQ(desk().takeBoxes().back(), Box{"Invalid directory for PROJECT files - " + gProjectsFolder});
}

TEST_F(CreateProject, AnOffsetThatDoesNotFitEndsTheProgramWithItsError) {
    frmSongConfig.Show();
    gVoiceTrackOffset = 40000;
    frmSongConfig->txtSongName.setText("Late");
    frmSongConfig->txtCategory.setText("x");
    frmSongConfig->CmdAdd.setValue(true);
    EXPECT_EQ(desk().takeGeneralError(), "6: Overflow");
}

}  // namespace
}  // namespace lyrebrook
